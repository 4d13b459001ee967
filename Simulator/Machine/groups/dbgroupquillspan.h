#pragma once

#include "Framework/groupproperty.h"

/// The rate controller's span of rows, published as "quillSpan". It only counts what it is asked for.
class DbGroupQuillSpan : public DataBrokerGroup {
    Q_OBJECT
    /// Setting true asks the controller to initialise itself again.
    ORVIK_GROUP_PROPERTY(bool, reInit, ReInit)
    /// How often that was asked for.
    ORVIK_GROUP_PROPERTY(int, reInitCount, ReInitCount)

public:
    explicit DbGroupQuillSpan(const QString &name, QObject *parent = nullptr);

private:
    void countRequest(bool requested);

    bool storedReInit = false;
    int storedReInitCount = 0;
};
