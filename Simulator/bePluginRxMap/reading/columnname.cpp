#include "columnname.h"

#include <QSet>
#include <QVector>

#include <algorithm>

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

struct AmountWords {
    ProductLineItem::Basis basis;
    QSet<QString> units;
    QSet<QString> products;
};

const QVector<AmountWords> &amountWords()
{
    static const QVector<AmountWords> words = {
        {ProductLineItem::Count, wordSet("seeds sds s k ks ksds plants pl st korn kst ct"),
         wordSet("seed seeding sow saat saatgut samen semence semilla semente population pop")},
        {ProductLineItem::Volume, wordSet("l lt ltr liter litre ml gal floz pt qt"),
         wordSet("herb herbicide fung fungicide insect spray liquid herbizid water")},
        {ProductLineItem::Weight, wordSet("kg g t to lb lbs oz"),
         wordSet("fert fertiliser fertilizer duenger dunger engrais fertilizante adubo urea lime kalk")},
    };
    return words;
}

/// The units of all amounts, and what a rate may count as it stands: "seed per hectare".
QSet<QString> unitsOfAmounts()
{
    QSet<QString> units = wordSet("seed");
    for (const AmountWords &known : amountWords())
        units.unite(known.units);
    return units;
}

const QSet<QString> &amountUnits()
{
    static const QSet<QString> words = unitsOfAmounts();
    return words;
}

/// Longest first: a word that ends in one of them may end in a shorter one, too.
const QStringList &areaUnits()
{
    static const QStringList words = QStringLiteral("hectare acres acre ha ac m2 a").split(QLatin1Char(' '));
    return words;
}

const QSet<QString> &otherWords()
{
    static const QSet<QString> words = wordSet(
        "id ids fid oid gid uid pid objectid globalid key dn area areas flaeche surface size perim perimeter length "
        "len shape total totals tot sum summe gesamt qt qty quantity count cnt num number nr no xmin xmax ymin ymax "
        "minx maxx miny maxy x y z lat lon lng long latitude longitude left right top bottom north south east west row "
        "col column idx index class code cat year jahr date time version flag status rep reps replic replicatio "
        "replication block plot strip zone level elev elevation slope altitude moisture yield ertrag ndvi cost price "
        "preis hectares ha ac acres");
    return words;
}

/// Units per area in one word: "kgha", "galperac".
QSet<QString> joinedUnits()
{
    QSet<QString> joined;
    for (const QString &unit : amountUnits()) {
        for (const QString &area : areaUnits()) {
            if (unit.size() + area.size() > 2)
                joined << unit + area << unit + QLatin1String("per") + area;
        }
    }
    return joined;
}

/// Whether the word is one of `words`, with or without a number behind it.
bool isIn(const QSet<QString> &words, const QString &word)
{
    QString letters = word;
    while (!letters.isEmpty() && letters.back().isDigit())
        letters.chop(1);
    return words.contains(word) || words.contains(letters);
}

} // namespace

ColumnName::ColumnName(const QString &name)
    : mayBeCut(name.size() >= maxTableName)
{
    QString word;
    for (int i = 0; i <= name.size(); ++i) {
        const bool isEnd = i == name.size() || !name.at(i).isLetterOrNumber();
        const bool isHump = !isEnd && i > 0 && name.at(i).isUpper() && name.at(i - 1).isLower();
        if ((isEnd || isHump) && !word.isEmpty()) {
            words.append(word.toLower());
            word.clear();
        }
        if (!isEnd)
            word.append(name.at(i));
    }
}

bool ColumnName::namesUnitPerArea() const
{
    static const QSet<QString> joined = joinedUnits();
    for (int i = 0; i < words.size(); ++i) {
        if (joined.contains(words.at(i)))
            return true;
        const int next = i + 1 < words.size() && words.at(i + 1) == QLatin1String("per") ? i + 2 : i + 1;
        if (!amountUnits().contains(words.at(i)) || next >= words.size())
            continue;
        const bool isCutArea = mayBeCut && next == words.size() - 1 && words.at(next) == QLatin1String("h");
        if (areaUnits().contains(words.at(next)) || isCutArea)
            return true;
    }
    return false;
}

QString ColumnName::unit() const
{
    for (int i = words.size() - 1; i >= 0; --i) {
        for (const QString &area : areaUnits()) {
            const QString &word = words.at(i);
            if (word == area && i > 0)
                return words.at(i - 1) == QLatin1String("per") ? words.value(i - 2) : words.at(i - 1);
            QString amount = word.endsWith(area) ? word.left(word.size() - area.size()) : QString();
            amount = amount.endsWith(QLatin1String("per")) ? amount.left(amount.size() - 3) : amount;
            if (amountUnits().contains(amount))
                return amount;
        }
    }
    return words.isEmpty() ? QString() : words.last();
}

ProductLineItem::Basis ColumnName::basis() const
{
    // Seed is sown by weight, too: its name says more than its unit.
    for (const AmountWords &known : amountWords()) {
        const bool isNamed = std::any_of(words.begin(), words.end(),
                                         [&known](const QString &word) { return isIn(known.products, word); });
        if (isNamed)
            return known.basis;
    }
    const QString measure = unit();
    for (const AmountWords &known : amountWords()) {
        if (known.units.contains(measure))
            return known.basis;
    }
    return ProductLineItem::None;
}

bool ColumnName::namesRate() const
{
    for (const QString &word : words) {
        if (isIn(rateWords(), word) || word.startsWith(QLatin1String("rate")) || word.endsWith(QLatin1String("rate"))
            || word.startsWith(QLatin1String("tgt")) || word.startsWith(QLatin1String("dose")))
            return true;
    }
    return namesUnitPerArea();
}

bool ColumnName::namesOther() const
{
    static const QSet<QString> decisive = wordSet("id ids fid oid gid uid objectid area areas flaeche total totals tot "
                                                  "sum summe gesamt count cnt");
    const bool rate = namesRate();
    for (const QString &word : words) {
        if (isIn(rate ? decisive : otherWords(), word))
            return true;
    }
    return false;
}
