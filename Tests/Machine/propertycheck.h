#pragma once

#include <QString>
#include <QVariant>

class DataBrokerGroup;

/// Writes one property of a group of its own broker by name, and looks at what has come of it: the value, the notify
/// signal, and that no other property moved. What is wrong; empty when nothing is. `group` comes to be owned by a
/// broker that lives as long as the call.
QString problemOfProperty(DataBrokerGroup *group, const QString &property, const QVariant &value);
