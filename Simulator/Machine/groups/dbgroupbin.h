#pragma once

#include "Framework/groupproperty.h"

/// A bin of the machine and what is in it, published as "system.binGroup.<product number>".
class DbGroupBin : public DataBrokerGroup {
    Q_OBJECT
    /// The product's name in a few letters.
    ORVIK_GROUP_PROPERTY(QString, compositionShortName, CompositionShortName)
    /// Name of the prescription group that feeds the bin's product; empty when none does.
    ORVIK_GROUP_PROPERTY(QString, rxMapGroupName, RxMapGroupName)
    /// The bin's number on the machine, from 1.
    ORVIK_GROUP_PROPERTY(int, binNumber, BinNumber)

public:
    explicit DbGroupBin(const QString &name, QObject *parent = nullptr);

private:
    QString storedCompositionShortName;
    QString storedRxMapGroupName;
    int storedBinNumber = 0;
};
