#pragma once

#include "result.h"

#include <QVariant>

/// Broker values as numbers, texts, booleans, lists and plain objects, and back.
class ScriptValue {
public:
    /// Records become QVariantMap by field name, lists QVariantList, colours "#rrggbb", pointers a text.
    static QVariant fromBroker(const QVariant &value);
    /// A value of meta-type `type`; fields that a record leaves out keep their defaults. The reason when `plain` does
    /// not describe one.
    static Result<QVariant> toBroker(const QVariant &plain, int type);
};
