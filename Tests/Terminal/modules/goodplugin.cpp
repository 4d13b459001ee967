#include "goodplugin.h"

void GoodPlugin::getPluginVersion(unsigned long &major, unsigned long &minor)
{
    major = 2;
    minor = 13;
}
