#pragma once

#include "Framework/groupproperty.h"

class DbGroupAAMPrivate;

/// An application map of the job: what one product applies.
class FRAMEWORK_EXPORT DbGroupAAM : public DataBrokerGroup {
    Q_OBJECT
    /// Name of the product group that the map belongs to; also the name of its DbGroupProductGroupInfo group.
    ORVIK_GROUP_PROPERTY(QString, productGroupName, ProductGroupName)

public:
    explicit DbGroupAAM(const QString &name, QObject *parent = nullptr);
    ~DbGroupAAM() override;

    QString productGroupName() const { return getProductGroupName(); }

private:
    QScopedPointer<DbGroupAAMPrivate> d;
};
