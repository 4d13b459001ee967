#pragma once

#include "mapkinds.h"

/// The maps that are made, and the real prescriptions beside the project where these are present. Files below 10 kB
/// are left out: their maps are built in microseconds.
std::vector<NamedMap> allMaps();
