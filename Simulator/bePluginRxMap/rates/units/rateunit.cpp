#include "rateunit.h"

#include <QSet>

#include <algorithm>

namespace {

using Words = QStringList;

QSet<QString> wordSet(const char *text)
{
    const QStringList words = QString::fromLatin1(text).split(QLatin1Char(' '));
    return QSet<QString>(words.begin(), words.end());
}

bool isPer(const QString &word)
{
    static const QSet<QString> words = wordSet("per p por par pro je");
    return words.contains(word);
}

bool isNutrient(const QString &word)
{
    static const QSet<QString> words = wordSet("n p k s b ca mg zn mn p2o5 k2o so3 mgo cao");
    return words.contains(word);
}

/// What may stand between amount and area: "kg N/ha", "kg_Rate_ac".
bool isSubstance(const QString &word)
{
    static const QSet<QString> words =
        wordSet("ai ae prod product produkt seeds seed plants rate dose dosis rx tgt target");
    return words.contains(word) || isNutrient(word);
}

/// "K_ha", "MG_AC": a nutrient, not thousands or milligrams.
bool isNutrientPerArea(const Words &words)
{
    static const QSet<QString> areas = wordSet("ha ac");
    return words.size() > 1 && isNutrient(words.at(0)) && areas.contains(words.at(1));
}

/// Whether the two words at `place` are a product and its unit rather than one unit split in two: "C_l_ha" is of a
/// product C (not centilitres), as "A_l_ha" is of a product A.
template <typename Unit> bool isNamedByLetter(const QHash<QString, const Unit *> &units, const Words &words, int place)
{
    const QString unit = words.value(place + 1);
    return words.at(place).size() == 1 && unit.size() == 1 && units.contains(unit);
}

/// Takes the unit that begins at `place`, of as many words as possible; null, and nothing taken, when none does.
template <typename Unit> const Unit *take(const QHash<QString, const Unit *> &units, const Words &words, int &place)
{
    constexpr int mostWords = 3;
    for (int count = std::min(mostWords, words.size() - place); count > 0; --count) {
        const auto found = units.constFind(words.mid(place, count).join(QString()));
        if (found == units.constEnd() || (count == 2 && isNamedByLetter(units, words, place)))
            continue;
        place += count;
        return *found;
    }
    return nullptr;
}

/// Units per area in one word: "kgha", "galperac", "lpha".
QHash<QString, RateUnit> joinedUnits()
{
    QHash<QString, RateUnit> joined{{QStringLiteral("gpa"), {UnitTable::amount("gal"), UnitTable::area("ac")}}};
    static const QSet<QString> areaWords = wordSet("ha hectare hectares ac acre acres m2 daa ft2 1000ft2");
    const auto &amounts = UnitTable::amountsBySpelling();
    const auto &areas = UnitTable::areasBySpelling();
    for (auto amount = amounts.begin(); amount != amounts.end(); ++amount) {
        for (auto area = areas.begin(); area != areas.end(); ++area) {
            // The others are too short or too rare to be told from ordinary words.
            if (!areaWords.contains(area.key()) || amount.key() == QLatin1String("s")
                || amount.key() == QLatin1String("1000"))
                continue;
            const RateUnit unit(*amount, *area);
            for (const char *link : {"", "p", "per"})
                joined.insert(amount.key() + QLatin1String(link) + area.key(), unit);
        }
    }
    return joined;
}

const AreaUnit *cutArea(const QString &word)
{
    for (const char *whole : {"hectare", "acre"}) {
        if (QLatin1String(whole).startsWith(word))
            return UnitTable::areasBySpelling().value(QLatin1String(whole));
    }
    return nullptr;
}

/// Whether a name that was cut off may have gone on with the rest of an area that it does not tell: "Dosis_kg_m".
bool mayBeCutArea(const QString &word)
{
    const auto &areas = UnitTable::areasBySpelling();
    return std::any_of(areas.keyBegin(), areas.keyEnd(),
                       [&word](const QString &spelling) { return spelling.startsWith(word); });
}

/// Takes the area that begins at `place`; null, and nothing taken, when none does.
const AreaUnit *takeAreaAt(const AmountUnit &amount, const Words &words, int &place, bool isCut)
{
    if (place >= words.size())
        return nullptr;
    const bool isLast = place == words.size() - 1;
    // A lone "a" is short for an acre, unless a metric unit stands before it.
    if (isLast && words.at(place) == QLatin1String("a") && (amount.isCustomary || isCut)) {
        ++place;
        return UnitTable::area("ac");
    }
    const AreaUnit *area = take(UnitTable::areasBySpelling(), words, place);
    if (area == nullptr && isLast && isCut)
        area = cutArea(words.at(place++));
    return area;
}

/// The same where a substance and "per" may stand before it.
const AreaUnit *takeArea(const AmountUnit &amount, const Words &words, int &place, bool isCut)
{
    int next = place;
    const AreaUnit *area = takeAreaAt(amount, words, next, isCut);
    if (area == nullptr) {
        next = place;
        while (next + 1 < words.size() && amount.basis != ProductLineItem::Count && isSubstance(words.at(next)))
            ++next;
        if (next + 1 < words.size() && isPer(words.at(next)))
            ++next;
        area = takeAreaAt(amount, words, next, isCut);
    }
    if (area != nullptr)
        place = next;
    return area;
}

/// Takes the unit per area that begins at `place`; not known, and nothing taken, when none does.
RateUnit takeUnit(const Words &words, int &place, bool isCut)
{
    static const QHash<QString, RateUnit> joined = joinedUnits();
    if (joined.contains(words.at(place)))
        return joined.value(words.at(place++));
    int next = place;
    const AmountUnit *amount = take(UnitTable::amountsBySpelling(), words, next);
    if (amount == nullptr)
        return {};
    const AreaUnit *area = takeArea(*amount, words, next, isCut);
    if (area == nullptr)
        return {};
    place = next;
    return {amount, area};
}

/// The places of the words outside of a unit, and of the substance within it: "kg N/ha".
void tellOthers(const Words &words, int first, int end, QVector<int> *others)
{
    for (int place = 0; others != nullptr && place < words.size(); ++place) {
        const bool isWithin = place > first && place < end - 1;
        if (place < first || place >= end || (isWithin && isNutrient(words.at(place))))
            others->append(place);
    }
}

} // namespace

RateUnit::RateUnit(const AmountUnit *amountUnit, const AreaUnit *areaUnit)
    : amount(areaUnit == nullptr ? nullptr : amountUnit)
    , area(amountUnit == nullptr ? nullptr : areaUnit)
{
    // Where land is measured in metric units, tons are metric as well.
    static const AmountUnit *const shortTon = UnitTable::amount("ton");
    static const QSet<QString> customaryAreas = wordSet("ac ft2");
    if (amount == shortTon && isKnown() && !customaryAreas.contains(QLatin1String(area->symbol))
        && qstrcmp(area->symbol, "1000 ft2") != 0)
        amount = UnitTable::amount("t");
}

QStringList RateUnit::wordsOf(const QString &text)
{
    QString plain = text;
    for (const auto &[letter, spelled] : {std::pair(u'ä', "ae"), std::pair(u'ö', "oe"), std::pair(u'ü', "ue"),
                                          std::pair(u'Ä', "AE"), std::pair(u'Ö', "OE"), std::pair(u'Ü', "UE")})
        plain.replace(QChar(letter), QLatin1String(spelled));
    QStringList words = writtenWordsOf(plain.normalized(QString::NormalizationForm_KD));
    for (QString &word : words)
        word = word.toLower();
    return words;
}

QStringList RateUnit::writtenWordsOf(const QString &text)
{
    QStringList words;
    QString word;
    QChar before;
    for (int i = 0; i <= text.size(); ++i) {
        const QChar letter = i < text.size() ? text.at(i) : QChar(QLatin1Char(' '));
        if (letter.isMark())
            continue;
        // A lone letter belongs to what follows: "mL".
        const bool isHump = letter.isUpper() && before.isLower() && word.size() > 1;
        if ((!letter.isLetterOrNumber() || isHump) && !word.isEmpty()) {
            words.append(word);
            word.clear();
        }
        if (letter.isLetterOrNumber())
            word.append(letter);
        before = letter;
    }
    return words;
}

RateUnit RateUnit::fromText(const QString &text)
{
    const Words words = wordsOf(text.toLower());
    int place = 0;
    const RateUnit unit = words.isEmpty() ? RateUnit() : takeUnit(words, place, false);
    return place == words.size() ? unit : RateUnit();
}

RateUnit RateUnit::find(const QStringList &words, bool isCut, QVector<int> *others)
{
    for (int place = 0; place < words.size(); ++place) {
        // "SEED_HA" may be in any unit per hectare.
        if (words.at(place) == QLatin1String("seed") || (place == 0 && isNutrientPerArea(words)))
            continue;
        int next = place;
        const RateUnit unit = takeUnit(words, next, isCut);
        if (!unit.isKnown())
            continue;
        tellOthers(words, place, next, others);
        return unit;
    }
    return {};
}

RateUnit RateUnit::findAmount(const QStringList &words, bool isCut, QVector<int> *others)
{
    const AmountUnit *amount = nullptr;
    int first = 0;
    int end = 0;
    for (int place = 0; place < words.size();) {
        int next = place;
        const AmountUnit *found = take(UnitTable::amountsBySpelling(), words, next);
        // A count may be named by what is counted, which is then not a unit.
        if (found == nullptr || found->basis == ProductLineItem::Count || isNutrient(words.at(place))) {
            ++place;
            continue;
        }
        // "Dose_ml_kg" is per weight of something.
        if (amount != nullptr)
            return {};
        amount = found;
        first = place;
        end = place = next;
    }
    if (amount == nullptr)
        return {};
    // Of one letter more may be cut off: "Tgt_Rate_l" may have been of litres or pounds.
    if (isCut && (end == words.size() ? words.last().size() == 1 : mayBeCutArea(words.last())))
        return {};
    tellOthers(words, first, end, others);
    return {amount, UnitTable::area(amount->isCustomary ? "ac" : "ha")};
}

QString RateUnit::text() const
{
    return isKnown() ? QLatin1String(amount->symbol) + QLatin1Char('/') + QLatin1String(area->symbol) : QString();
}

bool RateUnit::differsFrom(const RateUnit &other) const
{
    if (!isKnown() || !other.isKnown())
        return false;
    const RateUnit one = of(DbGroupProductGroupInfo::VolumeRate);
    const RateUnit two = other.of(DbGroupProductGroupInfo::VolumeRate);
    // Both products are of the same dimension, so that units of the same worth ("dt/ha", "kg/a") are equal.
    return one.basis() != two.basis()
        || !qFuzzyCompare(one.amount->factor * two.area->hectares, two.amount->factor * one.area->hectares);
}

RateUnit RateUnit::of(Kind kind) const
{
    static const AmountUnit *const ounce = UnitTable::amount("oz");
    const bool isLiquid = kind == DbGroupProductGroupInfo::VolumeRate || kind == DbGroupProductGroupInfo::InjectionRate;
    return isLiquid && isKnown() && amount == ounce ? RateUnit(UnitTable::amount("fl oz"), area) : *this;
}

bool RateUnit::fits(Kind kind) const
{
    const ProductLineItem::Basis measured = of(kind).basis();
    switch (kind) {
    case DbGroupProductGroupInfo::UnknownRate:
        return true;
    case DbGroupProductGroupInfo::CountRate:
        return !isKnown() || measured == ProductLineItem::Count;
    case DbGroupProductGroupInfo::VolumeRate:
    case DbGroupProductGroupInfo::InjectionRate:
        return !isKnown() || measured == ProductLineItem::Volume;
    case DbGroupProductGroupInfo::WeightRate:
        return !isKnown() || measured == ProductLineItem::Weight;
    default:
        return !isKnown();
    }
}

double RateUnit::factorTo(Kind kind) const
{
    const RateUnit unit = of(kind);
    if (!isKnown() || !fits(kind))
        return 1.0;
    constexpr double millilitresPerLitre = 1000.0;
    const double amounts = kind == DbGroupProductGroupInfo::InjectionRate ? unit.amount->factor * millilitresPerLitre
                                                                          : unit.amount->factor;
    return amounts / unit.area->hectares;
}

QString RateUnit::baseText(Kind kind)
{
    switch (kind) {
    case DbGroupProductGroupInfo::CountRate:
        return QStringLiteral("k/ha");
    case DbGroupProductGroupInfo::RatioRate:
        return QStringLiteral("L/L");
    case DbGroupProductGroupInfo::InjectionRate:
        return QStringLiteral("mL/ha");
    case DbGroupProductGroupInfo::VolumeRate:
        return QStringLiteral("L/ha");
    case DbGroupProductGroupInfo::WeightRate:
        return QStringLiteral("kg/ha");
    case DbGroupProductGroupInfo::PressureRate:
        return QStringLiteral("kPa");
    default:
        return {};
    }
}
