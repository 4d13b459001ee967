#include "lacksinterface.h"
