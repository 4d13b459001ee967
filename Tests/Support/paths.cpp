// The only source that knows where the project lies, so that moving it recompiles no other test.

#include "paths.h"

QString sourcePath(const char *relative)
{
    return QStringLiteral(RXMAP_SOURCE_DIR "/") + QLatin1String(relative);
}

QString buildPath(const char *relative)
{
    return QStringLiteral(RXMAP_BINARY_DIR "/") + QLatin1String(relative);
}

QString realDataFolder()
{
    return qEnvironmentVariable("RXMAP_REAL_DATA", QStringLiteral(RXMAP_TEST_DATA));
}
