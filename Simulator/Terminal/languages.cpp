#include "languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <memory>

/// A static library's resources have to be asked for, from outside of any namespace.
static void initialiseCatalogues()
{
    Q_INIT_RESOURCE(terminaltranslations);
}

namespace {

/// The language a catalogue's name ends with, the country with it ("de", "pt_BR"); empty when it names none.
QString languageOf(const QFileInfo &catalogue)
{
    static const QRegularExpression ending(QStringLiteral("_([a-z]{2,3}(?:_[A-Z]{2})?)$"));
    return ending.match(catalogue.completeBaseName()).captured(1);
}

/// Installs the catalogue for the life of the application; false when it is none.
bool installCatalogue(const QString &path)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    return translator->load(path) && QCoreApplication::installTranslator(translator.release());
}

} // namespace

QString Languages::install(const QString &code, const QDir &pluginFolder)
{
    QString language = code;
    language.replace(QLatin1Char('-'), QLatin1Char('_'));
    if (language.compare(QLatin1String("en"), Qt::CaseInsensitive) == 0) {
        QLocale::setDefault(QLocale::English);
        return {};
    }
    bool isFound = false;
    for (const QString &path : {pluginFolder.path(), pluginFolder.filePath(QStringLiteral("translations"))}) {
        const QFileInfoList catalogues = QDir(path).entryInfoList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
        for (const QFileInfo &catalogue : catalogues) {
            if (languageOf(catalogue).compare(language, Qt::CaseInsensitive) != 0)
                continue;
            if (!installCatalogue(catalogue.filePath()))
                return QStringLiteral("%1: no translation catalogue").arg(catalogue.filePath());
            isFound = true;
        }
    }
    if (!isFound)
        return QStringLiteral("--language %1: no catalogue for it in %2").arg(code, pluginFolder.path());
    // Numbers are written as it writes them.
    QLocale::setDefault(QLocale(language));
    // A language that only the plug-ins speak leaves the display's own texts as they are.
    initialiseCatalogues();
    const QStringList own = QDir(QStringLiteral(":/translations")).entryList();
    for (const QString &name : own) {
        if (languageOf(QFileInfo(name)).compare(language, Qt::CaseInsensitive) == 0)
            installCatalogue(QStringLiteral(":/translations/") + name);
    }
    return {};
}
