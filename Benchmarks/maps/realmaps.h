#pragma once

#include "mapkinds.h"

/// The generated maps, and the real prescriptions where these are present. Files below 10 kB are left out: their maps
/// are built in microseconds.
std::vector<NamedMap> allMaps();
