#include "Framework/spnswitchbytecalsettingsstruct.h"

namespace OrvikTypes {

SPN_SwitchByteCalSettingsStruct::SPN_SwitchByteCalSettingsStruct(bool isInjected)
    : injection(isInjected)
{
}

bool SPN_SwitchByteCalSettingsStruct::isInjection() const
{
    return injection;
}

} // namespace OrvikTypes
