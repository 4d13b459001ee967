#include "Framework/grouplock.h"

GroupLock::~GroupLock() = default;
