#include "terminalhost.h"

#include "productfile.h"

namespace {

QDir buildFolder(const char *folder)
{
    return QDir(QStringLiteral(RXMAP_BINARY_DIR) + QLatin1Char('/') + QLatin1String(folder));
}

} // namespace

TerminalHost::TerminalHost(UnitSystem units)
    : shown(ProductFile::standard(), units)
{
    error = shown.loadPlugins(buildFolder("Plugins/uiPluginRxMap"), buildFolder("Simulator/Resources/images"))
                .join(QLatin1Char('\n'));
    if (!shown.hasPlugins())
        error += QStringLiteral("the plug-in was not found");
    if (!shown.show())
        error += QStringLiteral("the display has no OpenGL");
}

QString TerminalHost::fixture(const QString &name)
{
    return QStringLiteral(RXMAP_SOURCE_DIR "/Tests/fixtures/") + name;
}

QString TerminalHost::sampleField()
{
    return QStringLiteral(RXMAP_SOURCE_DIR "/Simulator/Resources/sample/sample-field.shp");
}
