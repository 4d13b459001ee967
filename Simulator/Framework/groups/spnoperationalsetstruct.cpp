#include "Framework/spnoperationalsetstruct.h"

namespace OrvikTypes {

SPN_OperationalSetStruct::SPN_OperationalSetStruct(bool isRatio)
    : ratioRate(isRatio)
{
}

bool SPN_OperationalSetStruct::isRatioRate() const
{
    return ratioRate;
}

} // namespace OrvikTypes
