#include "ratesourcetext.h"

QString fileUnitText(const RateSource &source)
{
    if (source.unitFrom != RateSource::UnitFrom::Assumed)
        return source.unit;
    return source.unit.isEmpty() ? QStringLiteral("unit not known")
                                 : QStringLiteral("unit not known, taken as ") + source.unit;
}

QString unitTextOf(const RateSource &source)
{
    switch (source.unitFrom) {
    case RateSource::UnitFrom::Operator:
        return source.unit + QStringLiteral(", named by the operator");
    case RateSource::UnitFrom::Format:
        return source.unit + QStringLiteral(", from the format");
    case RateSource::UnitFrom::Column:
        return source.unit + QStringLiteral(", from the column beside it");
    case RateSource::UnitFrom::Text:
        return source.unit + QStringLiteral(", from its texts");
    case RateSource::UnitFrom::Name:
        return source.unit + QStringLiteral(", from the name");
    case RateSource::UnitFrom::Assumed:
        break;
    }
    return fileUnitText(source);
}
