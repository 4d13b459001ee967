#pragma once

#include "Framework/sharedmetatype.h"

namespace OrvikTypes {

/// Operational settings of a single product node.
class FRAMEWORK_EXPORT SPN_OperationalSetStruct {
public:
    SPN_OperationalSetStruct() = default;
    explicit SPN_OperationalSetStruct(bool ratioRate);

    /// The rate is product per carrier (volume per volume), not per area.
    bool isRatioRate() const;

private:
    bool ratioRate = false;
};

} // namespace OrvikTypes

ORVIK_DECLARE_SHARED_METATYPE(OrvikTypes::SPN_OperationalSetStruct)
