#include "columnname.h"

#include <QSet>

#include <algorithm>
#include <vector>

namespace {

/// Longest name that an attribute table of a Shapefile holds.
constexpr int maxTableName = 10;

QSet<QString> wordSet(const char *text)
{
    const QStringList words = QString::fromLatin1(text).split(QLatin1Char(' '));
    return QSet<QString>(words.begin(), words.end());
}

const QSet<QString> &rateWords()
{
    static const QSet<QString> words = wordSet(
        "rate rates rat dose doses dosis dosage dosierung rx vra tgt target setpoint soll sollwert taux dosi prescr "
        "prescription aufwand aufwandmenge ausbringmenge gabe tasa razao gpa");
    return words;
}

struct ProductWords {
    ProductLineItem::Basis basis;
    QSet<QString> words;
};

const std::vector<ProductWords> &wordsOfProducts()
{
    static const std::vector<ProductWords> words = {
        {ProductLineItem::Count,
         wordSet("seed seeds seedrate seeding sow saat saatgut samen semence semilla semente population pop")},
        {ProductLineItem::Volume, wordSet("herb herbicide fung fungicide insect spray liquid herbizid water")},
        {ProductLineItem::Weight,
         wordSet("fert fertiliser fertilizer duenger dunger engrais fertilizante adubo urea lime kalk")},
    };
    return words;
}

const QSet<QString> &appliedWords()
{
    static const QSet<QString> words = wordSet("applied appl app actual act ist");
    return words;
}

const QSet<QString> &wantedWords()
{
    static const QSet<QString> words = wordSet("target tgt planned plan desired prescribed set setpoint soll");
    return words;
}

const QSet<QString> &nutrients()
{
    static const QSet<QString> words = wordSet("n p k p2o5 k2o");
    return words;
}

const QSet<QString> &totalWords()
{
    static const QSet<QString> words = wordSet("total totals tot sum summe gesamt ges qt qty quantity");
    return words;
}

/// Words for what is not a rate, except those for totals.
const QSet<QString> &wordsOfOthers()
{
    static const QSet<QString> words = wordSet(
        "id ids fid oid gid uid pid objectid globalid key dn area areas flaeche surface size perim perimeter length "
        "len shape count cnt num number nr no xmin xmax ymin ymax "
        "minx maxx miny maxy x y z lat lon lng long latitude longitude left right top bottom north south east west row "
        "col column idx index class code kode codigo cat year jahr annee ano date time version flag status rep reps "
        "replic replicatio replication block plot strip zone level elev elevation slope altitude moisture protein "
        "yield yld ertrag rendement rendimiento ndvi evi savi cost price preis hectares ha ac acres field farm feld "
        "schlag parcel soil boden sol suelo solo ph om cec ec humus clay sand silt ppm unit units uom einheit unite "
        "unidad "
        "unidade tessellate extrude visibility draw");
    return words;
}

/// Words that say so even beside a word for a rate.
const QSet<QString> &decisiveWords()
{
    static const QSet<QString> words = wordSet(
        "id ids fid oid gid uid objectid area areas flaeche total totals tot sum summe gesamt count cnt code year "
        "yield yld ertrag rendement rendimiento soil ppm unit units uom einheit unite unidad unidade");
    return words;
}

/// Whether the word is one of `words`, with or without a number behind it.
bool isIn(const QSet<QString> &words, const QString &word)
{
    QString letters = word;
    while (!letters.isEmpty() && letters.back().isDigit())
        letters.chop(1);
    return words.contains(word) || words.contains(letters);
}

bool isRateWord(const QString &word)
{
    const bool endsInRate = word.endsWith(QLatin1String("rate")) && !word.endsWith(QLatin1String("nitrate"));
    return isIn(rateWords(), word) || word.startsWith(QLatin1String("rate")) || endsInRate
        || word.startsWith(QLatin1String("tgt")) || word.startsWith(QLatin1String("dose"));
}

bool isNumber(const QString &word)
{
    return std::all_of(word.begin(), word.end(), [](QChar letter) { return letter.isDigit(); });
}

/// The word with a capital first letter; the rest in small letters if it has more capitals than a symbol.
QString readable(const QString &word)
{
    constexpr int longestSymbol = 3;
    const bool areLetters = std::all_of(word.begin(), word.end(), [](QChar letter) { return letter.isLetter(); });
    const bool isShouted = areLetters && word.size() > longestSymbol && word == word.toUpper();
    return word.left(1).toUpper() + (isShouted ? word.mid(1).toLower() : word.mid(1));
}

} // namespace

ColumnName::ColumnName(const QString &name)
    : whole(name)
    , words(RateUnit::wordsOf(name))
    , mayBeCut(name.size() >= maxTableName)
{
}

RateUnit ColumnName::unit() const
{
    const RateUnit perArea = RateUnit::find(words, mayBeCut);
    return perArea.isKnown() || !hasRateWord() ? perArea : RateUnit::findAmount(words, mayBeCut);
}

bool ColumnName::contradicts(const RateUnit &other) const
{
    const RateUnit perArea = RateUnit::find(words, mayBeCut);
    return (perArea.isKnown() ? perArea : unit().perAreaOf(other)).differsFrom(other);
}

bool ColumnName::namesUnit() const
{
    static const QSet<QString> names = wordSet("unit units uom einheit unite unidad unidade");
    const bool hasUnit = std::any_of(words.begin(), words.end(), [](const QString &word) { return isIn(names, word); });
    return hasUnit && std::all_of(words.begin(), words.end(), [](const QString &word) {
               return isIn(names, word) || isIn(wantedWords(), word) || isRateWord(word) || isNumber(word);
           });
}

bool ColumnName::namesApplied() const
{
    return std::any_of(words.begin(), words.end(), [](const QString &word) { return isIn(appliedWords(), word); });
}

QString ColumnName::subject() const
{
    QStringList rest;
    for (const QString &word : words) {
        if (!rateWords().contains(word) && !wantedWords().contains(word) && !appliedWords().contains(word))
            rest.append(word);
    }
    return rest.join(QLatin1Char(' '));
}

QString ColumnName::product() const
{
    const QStringList rest = productWords();
    return rest.isEmpty() ? whole : rest.join(QLatin1Char(' '));
}

QStringList ColumnName::productWords() const
{
    QVector<int> others;
    const bool hasUnit = RateUnit::find(words, mayBeCut, &others).isKnown()
        || (hasRateWord() && RateUnit::findAmount(words, mayBeCut, &others).isKnown());
    const int end = !hasUnit && endsInArea() ? words.size() - 1 : words.size();
    for (int place = 0; !hasUnit && place < end; ++place)
        others.append(place);
    const QStringList written = RateUnit::writtenWordsOf(whole);
    QStringList rest;
    bool isSaying = false;
    for (const int place : qAsConst(others)) {
        const QString &word = words.at(place);
        if (isRateWord(word) || wantedWords().contains(word) || appliedWords().contains(word))
            continue;
        rest.append(readable(written.value(place)));
        isSaying = isSaying || !isNumber(word);
    }
    return isSaying && written.size() == words.size() ? rest : QStringList();
}

ProductLineItem::Basis ColumnName::basis() const
{
    // Seed may be sown by weight, too: the name says more than the unit.
    for (const ProductWords &known : wordsOfProducts()) {
        const bool isNamed =
            std::any_of(words.begin(), words.end(), [&known](const QString &word) { return isIn(known.words, word); });
        if (isNamed)
            return known.basis;
    }
    if (unit().isKnown())
        return unit().basis();
    const bool isNutrient =
        std::any_of(words.begin(), words.end(), [](const QString &word) { return nutrients().contains(word); });
    return isNutrient ? ProductLineItem::Weight : ProductLineItem::None;
}

bool ColumnName::hasRateWord() const
{
    return std::any_of(words.begin(), words.end(), isRateWord);
}

bool ColumnName::endsInArea() const
{
    static const QSet<QString> areas = wordSet("ha ac");
    return words.size() > 1 && areas.contains(words.last());
}

bool ColumnName::namesSoilContent() const
{
    // How much of a nutrient the soil holds: "K_mg_kg".
    const int milligrams = words.indexOf(QStringLiteral("mg"));
    return milligrams >= 0 && words.value(milligrams + 1).endsWith(QLatin1Char('g'));
}

QStringList ColumnName::otherWords() const
{
    QStringList others = words.mid(0, endsInArea() ? words.size() - 1 : words.size());
    others.erase(
        std::remove_if(others.begin(), others.end(),
                       [](const QString &word) { return !isIn(wordsOfOthers(), word) && !isIn(totalWords(), word); }),
        others.end());
    return others;
}

bool ColumnName::namesRate() const
{
    return hasRateWord() || RateUnit::find(words, mayBeCut).isKnown()
        || (endsInArea() && !namesSoilContent() && otherWords().isEmpty());
}

bool ColumnName::namesTotal() const
{
    const QStringList others = otherWords();
    return namesOther() && !namesSoilContent() && !others.isEmpty()
        && std::all_of(others.begin(), others.end(), [](const QString &word) { return isIn(totalWords(), word); });
}

bool ColumnName::namesOther() const
{
    if (!namesRate())
        return namesSoilContent() || !otherWords().isEmpty();
    return std::any_of(words.begin(), words.end(), [](const QString &word) { return isIn(decisiveWords(), word); });
}
