#include "Framework/basepluginprovides.h"

BasePlugInProvides::~BasePlugInProvides() = default;
