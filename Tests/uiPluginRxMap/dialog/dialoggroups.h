#pragma once

#include "Framework/groupproperty.h"

/// A bin of the machine, as the dialog reads it by name.
class BinGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QString, compositionShortName, CompositionShortName)
    ORVIK_GROUP_PROPERTY(QString, rxMapGroupName, RxMapGroupName)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        QString compositionShortName;
        QString rxMapGroupName;
    };
    QScopedPointer<Values> d{new Values};
};

/// A bin that only has the name of its prescription.
class NamelessBinGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QString, rxMapGroupName, RxMapGroupName)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        QString rxMapGroupName;
    };
    QScopedPointer<Values> d{new Values};
};

/// A position solution that gives standstill as a truth value.
class GpsGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(bool, vehicleIsStopped, VehicleIsStopped)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        bool vehicleIsStopped = false;
    };
    QScopedPointer<Values> d{new Values};
};

/// A bin that has no property for a prescription.
class UnmappedBinGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QString, compositionShortName, CompositionShortName)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        QString compositionShortName;
    };
    QScopedPointer<Values> d{new Values};
};

/// A position solution that gives standstill as a number.
class NumberGpsGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(int, vehicleIsStopped, VehicleIsStopped)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        int vehicleIsStopped = 0;
    };
    QScopedPointer<Values> d{new Values};
};

/// A position solution that gives standstill as text.
class TextGpsGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QString, vehicleIsStopped, VehicleIsStopped)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        QString vehicleIsStopped;
    };
    QScopedPointer<Values> d{new Values};
};

/// A position solution that gives standstill as a list.
class ListGpsGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QVariantList, vehicleIsStopped, VehicleIsStopped)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        QVariantList vehicleIsStopped;
    };
    QScopedPointer<Values> d{new Values};
};

/// A bin that names its prescription by a number.
class NumberBinGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(int, rxMapGroupName, RxMapGroupName)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        int rxMapGroupName = 0;
    };
    QScopedPointer<Values> d{new Values};
};

/// A receiver of re-initialisations that shows which type a value had when it was written.
class TextQuillSpanGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QString, reInit, ReInit)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        QString reInit;
    };
    QScopedPointer<Values> d{new Values};
};

class QuillSpanGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(bool, reInit, ReInit)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        bool reInit = false;
    };
    QScopedPointer<Values> d{new Values};
};
