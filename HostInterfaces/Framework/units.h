#pragma once

/// Unit abbreviations shared by host and plug-ins, not translated.
namespace OrvikUnits {

// Volume.
constexpr char FluidOunce[] = "fl oz";
constexpr char CubicMillimeter[] = "mm3";
constexpr char Milliliter[] = "mL";
constexpr char Liter[] = "L";
constexpr char Pint[] = "pt";
constexpr char Gallon[] = "gal";

// Mass.
constexpr char ShortTon[] = "ton";
constexpr char Tonne[] = "t";
constexpr char Ounce[] = "oz";
constexpr char Pound[] = "lb";
constexpr char Gram[] = "g";
constexpr char Kilogram[] = "kg";
constexpr char Milligram[] = "mg";

// Area.
constexpr char Acre[] = "ac";
constexpr char ThousandSquareFeet[] = "1000 ft2";
constexpr char Hectare[] = "ha";
constexpr char SquareMeter[] = "m2";

} // namespace OrvikUnits

/// Name of the property in which a widget keeps its mode.
constexpr char widgetModeSetting[] = "widgetModeSetting";
