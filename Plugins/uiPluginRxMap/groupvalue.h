#pragma once

#include "Framework/databroker.h"
#include "Framework/databrokergroup.h"

/// A group's property: taken as it is when it holds a `T`, else converted; `T()` when that fails or there is no such
/// property. `place`: the property of the group `source`, or the group and the property in the broker `source`.
template <typename T, typename Source, typename... Place> T groupValue(const Source &source, Place... place)
{
    QVariant value;
    source.getProperty(place..., value);
    return value.value<T>();
}
