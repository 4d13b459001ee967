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
        /// Of maps that are loaded together; no file tells it alone.
        FarAway
    };

    /// So many records are named one by one at most; the text tells how many there are.
    static constexpr int mostRecords = 1000;

    Kind kind = Kind::Overlap;
    /// One line, without the file's name.
    QString text;
    /// Records of the file that it is about, from 0.
    QList<int> records;
    /// Square metres, where there is an area that it is about.
    std::optional<double> area;
    /// A point of the local plane where it is seen, metres, where there is one.
    std::optional<QPointF> place;
    /// Extent of what it is about in the local plane, metres (top = least y); null where there is no place.
    QRectF extent = {};
};

Q_DECLARE_METATYPE(MapFinding)
