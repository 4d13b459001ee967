#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

/// A ring of task data, degrees.
struct TaskRing {
    std::vector<double> longitudes;
    std::vector<double> latitudes;
    bool isHole = false;
};

/// A process data variable: a rate, in steps of what its number (DDI) stands for.
struct ProcessValue {
    /// Below zero, as no rate is.
    static constexpr qint64 none = -1;

    int number = 0;
    qint64 value = none;
    QString product;      ///< Identifier; empty for none.
    QString device;       ///< Identifier of the device element; empty for none.
    QString presentation; ///< Identifier; empty for none.
};

/// A treatment zone: what is to be applied in its polygons, if it has any, and in the cells of a grid that name it.
struct TreatmentZone {
    int code = -1;
    std::vector<ProcessValue> values;
    /// Rings of each polygon.
    std::vector<std::vector<TaskRing>> polygons;
};

/// A grid of cells, the first one at its south-west corner.
struct TaskGrid {
    double south = 0.0; ///< Degrees, as are the others.
    double west = 0.0;
    double cellHeight = 0.0;
    double cellWidth = 0.0;
    qint64 columns = 0;
    qint64 rows = 0;
    /// Without its extension.
    QString file;
    /// 1: a zone's code for each cell; 2: values for each cell.
    int type = 0;
    /// Code of the zone whose values the cells of a grid of type 2 have.
    int zone = -1;
    /// Where the grid stands, for messages.
    QString place;
};

/// The work to do on one field.
struct Task {
    static constexpr int noZone = -1;

    QString id;
    QString designator;
    /// Identifier of the field; empty for none.
    QString field;
    int defaultZone = noZone;
    int positionLostZone = noZone;
    int outOfFieldZone = noZone;
    std::vector<TreatmentZone> zones;
    std::vector<TaskGrid> grids;
    /// The first thing within it that cannot be read, with its place; empty for none.
    QString problem;

    /// Designator, else identifier.
    QString name() const { return designator.isEmpty() ? id : designator; }
    bool isNamed(const QString &wanted) const { return id == wanted || designator == wanted; }
    bool hasPrescription() const;
    /// Null when there is no such zone.
    const TreatmentZone *zone(int code) const;
};

/// The boundary of a field.
struct TaskField {
    std::vector<TaskRing> boundary;
    /// The first thing within it that cannot be read, with its place; empty for none.
    QString problem;
};

/// How a value is shown: (value + offset) * scale, in the unit.
struct ValuePresentation {
    double offset = 0.0;
    double scale = 1.0;
    QString unit;
};

/// What task data says about prescriptions.
struct TaskData {
    std::vector<Task> tasks;
    /// By identifier.
    QHash<QString, TaskField> fields;
    /// Designators by identifier.
    QHash<QString, QString> products;
    /// By identifier.
    QHash<QString, ValuePresentation> presentations;
    /// What was assumed.
    QStringList warnings;
};
