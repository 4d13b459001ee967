#pragma once

#include "groupreading.h"
#include "handmadechain.h"

#include <memory>
#include <random>

// What a hostile host's map groups hold.

/// Rectangles in the four quarters of the field, at most one hole in each quarter.
std::unique_ptr<HandMadeChain> randomChain(int mappings, std::mt19937 &random);
Legends randomLegends(int mappings, std::mt19937 &random);
Mappings randomMappings(int seed);
Settings randomSettings(int seed);
