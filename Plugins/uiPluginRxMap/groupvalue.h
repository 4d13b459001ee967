#pragma once

#include "Framework/databrokergroup.h"

/// A group's property: taken as it is when it holds a `T`, else converted; `T()` when that fails or there is no such
/// property.
template <typename T> T groupValue(const DataBrokerGroup &group, const char *property)
{
    QVariant value;
    group.getProperty(property, value);
    return value.value<T>();
}
