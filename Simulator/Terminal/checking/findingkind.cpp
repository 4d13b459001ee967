#include "findingkind.h"

#include <QCoreApplication>

namespace {

struct Words {
    const char *name;
    const char *title;
};

Words wordsOf(MapFinding::Kind kind)
{
    switch (kind) {
    case MapFinding::Kind::Overlap:
        return {"overlap", QT_TRANSLATE_NOOP("FindingKind", "Overlap")};
    case MapFinding::Kind::Gap:
        return {"gap", QT_TRANSLATE_NOOP("FindingKind", "Gap")};
    case MapFinding::Kind::Sliver:
        return {"sliver", QT_TRANSLATE_NOOP("FindingKind", "Sliver")};
    case MapFinding::Kind::Repaired:
        return {"repaired", QT_TRANSLATE_NOOP("FindingKind", "Repaired")};
    case MapFinding::Kind::Skipped:
        return {"skipped", QT_TRANSLATE_NOOP("FindingKind", "Left out")};
    case MapFinding::Kind::Outlier:
        return {"outlier", QT_TRANSLATE_NOOP("FindingKind", "Rate far from the rest")};
    case MapFinding::Kind::Total:
        return {"total", QT_TRANSLATE_NOOP("FindingKind", "Totals, not rates")};
    case MapFinding::Kind::UnitUnknown:
        return {"unitUnknown", QT_TRANSLATE_NOOP("FindingKind", "Unit not known")};
    case MapFinding::Kind::UnitMismatch:
        return {"unitMismatch", QT_TRANSLATE_NOOP("FindingKind", "Unit does not fit")};
    case MapFinding::Kind::GuessedColumn:
        return {"guessedColumn", QT_TRANSLATE_NOOP("FindingKind", "Column is a guess")};
    case MapFinding::Kind::ReferenceSystem:
        return {"referenceSystem", QT_TRANSLATE_NOOP("FindingKind", "Coordinate system assumed")};
    case MapFinding::Kind::NotANumber:
        return {"notANumber", QT_TRANSLATE_NOOP("FindingKind", "Not a number")};
    case MapFinding::Kind::Duplicate:
        return {"duplicate", QT_TRANSLATE_NOOP("FindingKind", "Same shape twice")};
    case MapFinding::Kind::StrayPolygon:
        return {"strayPolygon", QT_TRANSLATE_NOOP("FindingKind", "Polygon far away")};
    case MapFinding::Kind::LooseHole:
        return {"looseHole", QT_TRANSLATE_NOOP("FindingKind", "Hole without a polygon")};
    case MapFinding::Kind::Narrow:
        return {"narrow", QT_TRANSLATE_NOOP("FindingKind", "Narrower than the machine")};
    case MapFinding::Kind::FarAway:
        return {"farAway", QT_TRANSLATE_NOOP("FindingKind", "Another field")};
    }
    return {"", ""};
}

} // namespace

QString FindingKind::name(MapFinding::Kind kind)
{
    return QString::fromLatin1(wordsOf(kind).name);
}

QString FindingKind::title(MapFinding::Kind kind)
{
    return QCoreApplication::translate("FindingKind", wordsOf(kind).title);
}
