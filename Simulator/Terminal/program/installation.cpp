#include "installation.h"

#include <QCoreApplication>

namespace {

QDir besideProgram(const char *installed, const char *built)
{
    const QString program = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    const QDir folder(QDir::cleanPath(program + QLatin1String(installed)));
    return folder.exists() ? folder : QDir(QDir::cleanPath(program + QLatin1String(built)));
}

} // namespace

QDir Installation::plugins(const QString &named)
{
    return named.isEmpty() ? besideProgram(RXMAP_INSTALLED_PLUGINS, "../../Plugins/uiPluginRxMap") : QDir(named);
}

QDir Installation::images()
{
    return besideProgram(RXMAP_INSTALLED_IMAGES, "../Resources/images");
}

QString Installation::sampleField()
{
    return besideProgram(RXMAP_INSTALLED_SAMPLE, "../Resources/sample").filePath(QStringLiteral("sample-field.shp"));
}
