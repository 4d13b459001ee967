#include "setreceiver.h"
