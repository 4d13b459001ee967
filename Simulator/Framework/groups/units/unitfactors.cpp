#include "unitfactors.h"

namespace {

// International yard and pound agreement of 1959: 1 in = 25.4 mm, 1 lb = 0.45359237 kg, both exact.
constexpr double metresPerInch = 0.0254;
constexpr double metresPerFoot = 12.0 * metresPerInch;
constexpr double kilogramsPerPound = 0.45359237;

// An acre is 43560 square feet; turf rates are per 1000 square feet.
constexpr double squareMetresPerHectare = 10000.0;
constexpr double hectaresPerAcre = 43560.0 * metresPerFoot * metresPerFoot / squareMetresPerHectare;
constexpr double hectaresPerTurf = 1000.0 * metresPerFoot * metresPerFoot / squareMetresPerHectare;

// A United States liquid gallon is 231 cubic inches and 128 fluid ounces.
constexpr double litresPerGallon = 231.0 * metresPerInch * metresPerInch * metresPerInch * 1000.0;
constexpr double fluidOuncesPerGallon = 128.0;
constexpr double millilitresPerFluidOunce = litresPerGallon * 1000.0 / fluidOuncesPerGallon;

// Standard gravity (third General Conference on Weights and Measures, 1901) and the conventional density of mercury
// (0 degrees Celsius, 13595.1 kg/m3) of ISO 31-3.
constexpr double standardGravity = 9.80665;
constexpr double mercuryDensity = 13595.1;

constexpr double pascalsPerKilopascal = 1000.0;
constexpr double pascalsPerPsi = kilogramsPerPound * standardGravity / (metresPerInch * metresPerInch);
constexpr double pascalsPerBar = 100000.0;
constexpr double pascalsPerInchOfMercury = mercuryDensity * standardGravity * metresPerInch;
constexpr double pascalsPerMillimetreOfMercury = mercuryDensity * standardGravity * 0.001;
constexpr double pascalsPerAtmosphere = 101325.0;
constexpr double pascalsPerHectopascal = 100.0;

double pressureFactor(int pressureUnit)
{
    switch (pressureUnit) {
    case 0:
        return pascalsPerKilopascal / pascalsPerPsi;
    case 2:
        return pascalsPerKilopascal / pascalsPerBar;
    case 3:
        return pascalsPerKilopascal / pascalsPerInchOfMercury;
    case 4:
        return pascalsPerKilopascal / pascalsPerMillimetreOfMercury;
    case 5:
        return pascalsPerKilopascal / pascalsPerAtmosphere;
    case 6:
        return pascalsPerKilopascal / pascalsPerHectopascal;
    default:
        return 1.0;
    }
}

} // namespace

UnitFactors UnitFactors::of(int areaUnitSystem, int pressureUnit)
{
    UnitFactors factors;
    factors.pressure = pressureFactor(pressureUnit);
    if (areaUnitSystem == 1)
        return factors;
    const double hectaresPerArea = areaUnitSystem == 0 ? hectaresPerAcre : hectaresPerTurf;
    factors.countRate = hectaresPerArea;
    // Ratio units know no area: turf shares the per-gallon ratio.
    factors.ratioRate = fluidOuncesPerGallon;
    factors.injectionRate = hectaresPerArea / millilitresPerFluidOunce;
    factors.volumeRate = hectaresPerArea / litresPerGallon;
    factors.weightRate = hectaresPerArea / kilogramsPerPound;
    return factors;
}
