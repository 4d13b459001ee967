#include "product.h"

#include <limits>

ActuatorSettings Product::usualActuator(Kind kind)
{
    switch (kind) {
    case Kind::Count: // An electric drive on the singling disc, thousands per hectare.
        return {0.3, 0.4, 5.0, 10000.0};
    case Kind::Weight: // A spinner's or an air seeder's metering roll, kg/ha.
        return {0.6, 0.8, 10.0, 20000.0};
    case Kind::Volume: // A pump with a control valve, L/ha.
        return {0.4, 0.6, 0.5, 100000.0};
    case Kind::Injection: // A metering pump before the boom, mL/ha.
        return {1.0, 1.0, 5.0, 100000.0};
    case Kind::Ratio: // L/L.
        return {1.0, 1.0, 0.0, 1.0};
    case Kind::Pressure: // kPa.
        return {0.2, 0.3, 50.0, 2000.0};
    case Kind::Unknown:
        break;
    }
    return {0.5, 0.5, 0.0, std::numeric_limits<double>::max()};
}

DbGroupProductGroupInfo::RateKind Product::rateKind() const
{
    switch (kind) {
    case Kind::Count:
        return DbGroupProductGroupInfo::CountRate;
    case Kind::Ratio:
        return isCarrier ? DbGroupProductGroupInfo::VolumeRate : DbGroupProductGroupInfo::RatioRate;
    case Kind::Injection:
        return isCarrier ? DbGroupProductGroupInfo::VolumeRate : DbGroupProductGroupInfo::InjectionRate;
    case Kind::Volume:
        return DbGroupProductGroupInfo::VolumeRate;
    case Kind::Weight:
        return DbGroupProductGroupInfo::WeightRate;
    case Kind::Pressure:
        return DbGroupProductGroupInfo::PressureRate;
    case Kind::Unknown:
        break;
    }
    return DbGroupProductGroupInfo::UnknownRate;
}
