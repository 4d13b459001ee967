#pragma once

#include "loadedmap.h"

/// Whether the chain matches its counts, and its rings can be drawn and queried.
bool holdsTogether(const LoadedMap &map);
