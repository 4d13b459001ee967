#pragma once

#include "Framework/groupproperty.h"

class DbGroupJobPrivate;

/// The current job, published as "system.current.job".
class FRAMEWORK_EXPORT DbGroupJob : public DataBrokerGroup {
    Q_OBJECT
    /// Name of the job's active application map (AAM), a DbGroupAAM group; empty when there is none. Every set, also
    /// of an equal name, asks the subscribers to look the group up again.
    ORVIK_GROUP_PROPERTY(QString, activeAAMGroupName, ActiveAAMGroupName)

public:
    explicit DbGroupJob(const QString &name, QObject *parent = nullptr);
    ~DbGroupJob() override;

private:
    QScopedPointer<DbGroupJobPrivate> d;
};
