#pragma once

#include "Framework/sharedmetatype.h"

namespace OrvikTypes {

/// Switch-byte calibration settings of a single product node.
class FRAMEWORK_EXPORT SPN_SwitchByteCalSettingsStruct {
public:
    SPN_SwitchByteCalSettingsStruct() = default;
    explicit SPN_SwitchByteCalSettingsStruct(bool injection);

    /// The node meters by direct injection into the carrier.
    bool isInjection() const;

private:
    bool injection = false;
};

} // namespace OrvikTypes

ORVIK_DECLARE_SHARED_METATYPE(OrvikTypes::SPN_SwitchByteCalSettingsStruct)
