#pragma once

/// Factors from the base units of rates (count 1000/ha, ratio L/L, injection mL/ha, volume L/ha, weight kg/ha,
/// pressure kPa) to the operator's units.
struct UnitFactors {
    double countRate = 1.0;
    double ratioRate = 1.0;
    double injectionRate = 1.0;
    double volumeRate = 1.0;
    double weightRate = 1.0;
    double pressure = 1.0;

    /// `areaUnitSystem` and `pressureUnit` as in DbGroupQmlUnitsConverter.
    static UnitFactors of(int areaUnitSystem, int pressureUnit);
};
