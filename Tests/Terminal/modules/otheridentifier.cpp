#include "otheridentifier.h"

#include <cstdlib>

namespace {

/// The library must be rejected by its metadata, before any of its code runs.
struct RunsOnLoading {
    RunsOnLoading() { setenv("RXMAP_TEST_OTHER_IDENTIFIER_RAN", "1", 1); }
} runsOnLoading;

} // namespace
