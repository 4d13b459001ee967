#pragma once

#include <QList>
#include <QMetaType>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>

/// Something that is wrong with a map, or was taken for granted when it was loaded.
struct MapFinding {
    enum class Kind {
        Overlap,
        Gap,
        Sliver,
        Repaired,
        Skipped,
        Outlier,
        Total,
        UnitUnknown,
        UnitMismatch,
        GuessedColumn,
        ReferenceSystem,
        NotANumber,
        Duplicate,
        StrayPolygon,
        LooseHole,
        Narrow,
        /// Concerns maps that are loaded together; no file shows it alone.
        FarAway
    };

    /// At most this many records are named one by one; the text says how many there are.
    static constexpr int mostRecords = 1000;

    Kind kind = Kind::Overlap;
    /// One line, without the file's name.
    QString text;
    /// Records of the file that it is about, from 0.
    QList<int> records;
    /// Its area in square metres, if it has one.
    std::optional<double> area;
    /// A point of the local plane where it can be seen, metres, if there is one.
    std::optional<QPointF> place;
    /// The column in which it is seen; empty if it concerns all.
    QString column = {};
    /// Extent of what it is about in the local plane, metres (top = least y); null where there is no place.
    QRectF extent = {};
};

Q_DECLARE_METATYPE(MapFinding)
