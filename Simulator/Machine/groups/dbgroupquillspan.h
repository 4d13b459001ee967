#pragma once

#include "Framework/groupproperty.h"

/// The rate controller's span of rows, published as "quillSpan". It only counts the requests.
class DbGroupQuillSpan : public DataBrokerGroup {
    Q_OBJECT
    /// Setting true asks the controller to initialise itself again.
    ORVIK_GROUP_PROPERTY(bool, reInit, ReInit)
    /// How often that was requested.
    ORVIK_GROUP_PROPERTY(int, reInitCount, ReInitCount)

public:
    explicit DbGroupQuillSpan(const QString &name, QObject *parent = nullptr);

private:
    void countRequest(bool requested);

    bool storedReInit = false;
    int storedReInitCount = 0;
};
