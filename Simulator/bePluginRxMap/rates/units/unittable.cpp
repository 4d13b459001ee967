#include "unittable.h"

#include <QStringList>

#include <algorithm>
#include <cstring>

namespace {

const char definition[] = "definition";
const char si[] = "SI brochure, 9th edition";
const char nist[] = "NIST SP 811:2008, appendix B";
const char yardAndPound[] = "international yard and pound agreement of 1959";
const char imperialUnits[] = "Units of Measurement Regulations 1995 (United Kingdom)";

constexpr double kilogramsPerPound = 0.45359237;
constexpr double metresPerFoot = 0.3048;
constexpr double squareFoot = metresPerFoot * metresPerFoot / 10000.0; ///< Hectares.
// 231 cubic inches of 25.4 mm.
constexpr double litresPerGallon = 3.785411784;
constexpr double litresPerImperialGallon = 4.54609;

template <typename Unit> QHash<QString, const Unit *> bySpelling(const std::vector<Unit> &units)
{
    QHash<QString, const Unit *> result;
    for (const Unit &unit : units) {
        for (const QString &spelling : QString::fromLatin1(unit.spellings).split(QLatin1Char(' ')))
            result.insert(spelling, &unit);
    }
    return result;
}

template <typename Unit> const Unit *bySymbol(const std::vector<Unit> &units, const char *symbol)
{
    const auto found = std::find_if(units.begin(), units.end(),
                                    [symbol](const Unit &unit) { return std::strcmp(unit.symbol, symbol) == 0; });
    return found == units.end() ? nullptr : &*found;
}

} // namespace

const std::vector<AmountUnit> &UnitTable::amounts()
{
    using Item = ProductLineItem;
    static const std::vector<AmountUnit> table = {
        {"k", Item::Count, 1.0, false, definition,
         "1000 k ks ksds kst kseeds kplants 1000seeds 1000sds 1000plants 1000kernels 1000korn 1000koerner thousand "
         "thousands tsd mil milheiro milhares kpl 1000k kkoerner tsdkoerner"},
        {"seeds", Item::Count, 1e-3, false, definition,
         "seeds seed sds s plants plant plantas pl st stk stueck pcs ct korn koerner kernel kernels grains graines "
         "semillas sementes semi samen sem koe kerne pfl pflanzen planten graos"},
        {"million", Item::Count, 1e3, false, definition, "million millions mio miok mioseeds mioplants"},
        {"kg", Item::Weight, 1.0, false, si, "kg kgs kilo kilos kilogram kilograms kilogramm kilogramme kilogramo"},
        {"g", Item::Weight, 1e-3, false, si, "g gr grs gram grams gramm gramme gramo"},
        {"mg", Item::Weight, 1e-6, false, si, "mg"},
        {"dt", Item::Weight, 100.0, false, si, "dt dezitonne dezitonnen q qq qx quintal quintaux"},
        {"t", Item::Weight, 1000.0, false, si, "t to tn tonne tonnes tonnen tonelada toneladas mt"},
        {"lb", Item::Weight, kilogramsPerPound, true, yardAndPound, "lb lbs pound pounds"},
        {"oz", Item::Weight, kilogramsPerPound / 16.0, true, nist, "oz ounce ounces dryoz ozdry"},
        {"cwt", Item::Weight, 100.0 * kilogramsPerPound, true, nist, "cwt hundredweight"},
        {"ton", Item::Weight, 2000.0 * kilogramsPerPound, true, nist, "ton tons shortton shorttons"},
        {"L", Item::Volume, 1.0, false, si, "l lt lts ltr ltrs liter liters litre litres litro litros"},
        {"mL", Item::Volume, 1e-3, false, si, "ml cc ccm cm3 milliliter millilitre mililitro mililitros"},
        {"mm3", Item::Volume, 1e-6, false, si, "mm3"},
        {"cL", Item::Volume, 1e-2, false, si, "cl"},
        {"dL", Item::Volume, 0.1, false, si, "dl"},
        {"hL", Item::Volume, 100.0, false, si, "hl"},
        {"m3", Item::Volume, 1000.0, false, si, "m3 cbm"},
        {"gal", Item::Volume, litresPerGallon, true, nist, "gal gals gallon gallons usgal galon galones"},
        {"qt", Item::Volume, litresPerGallon / 4.0, true, nist, "qt qts quart quarts"},
        {"pt", Item::Volume, litresPerGallon / 8.0, true, nist, "pt pts pint pints"},
        {"fl oz", Item::Volume, litresPerGallon / 128.0, true, nist, "floz flozs fluidoz fluidounce fluidounces ozfl"},
        {"imp gal", Item::Volume, litresPerImperialGallon, true, imperialUnits, "impgal igal ukgal imperialgallons"},
    };
    return table;
}

const std::vector<AreaUnit> &UnitTable::areas()
{
    static const std::vector<AreaUnit> table = {
        {"ha", 1.0, si, "ha has hectare hectares hektar hectarea hectareas"},
        {"ac", 43560.0 * squareFoot, yardAndPound, "ac acr acre acres"},
        {"m2", 1e-4, si, "m2 qm sqm sm"},
        {"a", 1e-2, si, "a are ares ar 100m2 100qm 100sqm"},
        {"daa", 0.1, si, "daa da dca dekar decare decares dunam doenuem 1000m2 1000qm 1000sqm 10a"},
        {"ft2", squareFoot, yardAndPound, "ft2 sqft"},
        {"1000 ft2", 1000.0 * squareFoot, yardAndPound, "1000ft2 1000sqft ksqft kft2 msf mft2 turf"},
    };
    return table;
}

const QHash<QString, const AmountUnit *> &UnitTable::amountsBySpelling()
{
    static const QHash<QString, const AmountUnit *> units = bySpelling(amounts());
    return units;
}

const QHash<QString, const AreaUnit *> &UnitTable::areasBySpelling()
{
    static const QHash<QString, const AreaUnit *> units = bySpelling(areas());
    return units;
}

const AmountUnit *UnitTable::amount(const char *symbol)
{
    return bySymbol(amounts(), symbol);
}

const AreaUnit *UnitTable::area(const char *symbol)
{
    return bySymbol(areas(), symbol);
}
