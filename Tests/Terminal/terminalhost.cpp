#include "terminalhost.h"

#include "paths.h"
#include "productfile.h"

TerminalHost::TerminalHost(UnitSystem units)
    : shown(ProductFile::standard(), units)
{
    error = shown.loadPlugins(buildPath("Plugins/uiPluginRxMap"), buildPath("Simulator/Resources/images"))
                .join(QLatin1Char('\n'));
    if (!shown.hasPlugins())
        error += QStringLiteral("the plug-in was not found");
    if (!shown.show())
        error += QStringLiteral("the display has no OpenGL");
}

QString TerminalHost::fixture(const QString &name)
{
    return sourcePath("Tests/fixtures/") + name;
}

QString TerminalHost::sampleField()
{
    return sourcePath("Simulator/Resources/sample/sample-field.shp");
}

QString TerminalHost::scriptStart(const QString &folder)
{
    return QStringLiteral("function same(a, b) { a = JSON.stringify(a); b = JSON.stringify(b);"
                          " if (a !== b) throw new Error(a + ' is not ' + b); }"
                          "var zones = '%1'; var sample = '%2'; var folder = '%3'; ")
        .arg(fixture("three-zones.geojson"), sampleField(), folder);
}
