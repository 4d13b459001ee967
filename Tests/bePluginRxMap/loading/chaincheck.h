#pragma once

#include "loadedmap.h"

/// Whether the chain is as its counts say, and its rings can be drawn and asked.
bool holdsTogether(const LoadedMap &map);
