#pragma once

#include "Framework/frameworkglobal.h"

#include <QString>

/// What every plug-in of the host tells about itself.
class FRAMEWORK_EXPORT BasePlugInProvides {
public:
    virtual ~BasePlugInProvides();

    virtual void close() = 0;
    /// Version of the plug-in interface that the plug-in was built against.
    virtual void getInterfaceVersion(unsigned long &major, unsigned long &minor) = 0;
    /// Version of the data-broker layout that the plug-in was built against.
    virtual void getDbVersion(unsigned long &major, unsigned long &minor) = 0;
    virtual QString getPluginName() = 0;
    virtual void getPluginVersion(unsigned long &major, unsigned long &minor) = 0;
};
