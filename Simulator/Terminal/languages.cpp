#include "languages.h"

#include <QCoreApplication>
#include <QTranslator>

#include <memory>

/// A static library's resources have to be asked for, from outside of any namespace.
static void initialiseCatalogues()
{
    Q_INIT_RESOURCE(terminaltranslations);
}

namespace {

/// Installs the catalogue for the life of the application; false when it is none.
bool installCatalogue(const QString &path)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    return translator->load(path) && QCoreApplication::installTranslator(translator.release());
}

} // namespace

QString Languages::install(const QString &code, const QDir &pluginFolder)
{
    QString suffix = code;
    suffix.replace(QLatin1Char('-'), QLatin1Char('_'));
    if (suffix.compare(QLatin1String("en"), Qt::CaseInsensitive) == 0)
        return {};
    bool isFound = false;
    for (const QString &path : {pluginFolder.path(), pluginFolder.filePath(QStringLiteral("translations"))}) {
        const QFileInfoList catalogues = QDir(path).entryInfoList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
        for (const QFileInfo &catalogue : catalogues) {
            if (!catalogue.completeBaseName().endsWith(QLatin1Char('_') + suffix, Qt::CaseInsensitive))
                continue;
            if (!installCatalogue(catalogue.filePath()))
                return QStringLiteral("%1: no translation catalogue").arg(catalogue.filePath());
            isFound = true;
        }
    }
    if (!isFound)
        return QStringLiteral("--language %1: no catalogue for it in %2").arg(code, pluginFolder.path());
    // A language that only the plug-ins speak leaves the display's own texts as they are.
    initialiseCatalogues();
    const QStringList own = QDir(QStringLiteral(":/translations")).entryList();
    for (const QString &name : own) {
        if (name.compare(QStringLiteral("terminal_%1.qm").arg(suffix), Qt::CaseInsensitive) == 0)
            installCatalogue(QStringLiteral(":/translations/") + name);
    }
    return {};
}
