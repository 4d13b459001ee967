#include "languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>
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

/// Installs the catalogue for the life of the application; false when it is not a catalogue.
bool installCatalogue(const QString &path)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    return translator->load(path) && QCoreApplication::installTranslator(translator.release());
}

const QString english = QStringLiteral("en");

/// "pt_BR" of "pt-BR".
QString withCountry(QString code)
{
    return code.replace(QLatin1Char('-'), QLatin1Char('_'));
}

/// "pt" of "pt_BR".
QString withoutCountry(const QString &language)
{
    return language.section(QLatin1Char('_'), 0, 0);
}

QFileInfoList ownCatalogues()
{
    initialiseCatalogues();
    return QDir(QStringLiteral(":/translations")).entryInfoList();
}

QFileInfoList cataloguesOf(const QDir &pluginFolder)
{
    QFileInfoList all;
    for (const QString &path : {pluginFolder.path(), pluginFolder.filePath(QStringLiteral("translations"))})
        all += QDir(path).entryInfoList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    return all;
}

bool isSame(const QString &language, const QString &other)
{
    return language.compare(other, Qt::CaseInsensitive) == 0;
}

/// The languages that both the display and the plug-ins speak.
QStringList languagesWith(const QDir &pluginFolder)
{
    QStringList guests;
    const QFileInfoList catalogues = cataloguesOf(pluginFolder);
    for (const QFileInfo &catalogue : catalogues)
        guests.append(languageOf(catalogue));
    QStringList all{english};
    const QFileInfoList own = ownCatalogues();
    for (const QFileInfo &catalogue : own) {
        if (guests.contains(languageOf(catalogue)))
            all.append(languageOf(catalogue));
    }
    return all;
}

} // namespace

QString Languages::suiting(const QStringList &wanted, const QDir &pluginFolder)
{
    const QStringList spoken = languagesWith(pluginFolder);
    for (const QString &name : wanted) {
        const QString language = withCountry(name);
        if (spoken.contains(language))
            return language;
        for (const QString &other : spoken) {
            if (withoutCountry(other) == withoutCountry(language))
                return other;
        }
    }
    return english;
}

QString Languages::problem(const QString &code, const QDir &pluginFolder)
{
    const QString language = withCountry(code);
    const QFileInfoList catalogues = cataloguesOf(pluginFolder);
    const bool isSpoken = isSame(language, english)
        || std::any_of(catalogues.begin(), catalogues.end(),
                       [&language](const QFileInfo &catalogue) { return isSame(languageOf(catalogue), language); });
    return isSpoken ? QString()
                    : QStringLiteral("--language %1: no catalogue for it in %2").arg(code, pluginFolder.path());
}

QString Languages::install(const QString &code, const QDir &pluginFolder)
{
    const QString language = withCountry(code);
    if (isSame(language, english)) {
        QLocale::setDefault(QLocale::English);
        return {};
    }
    const QString error = problem(code, pluginFolder);
    if (!error.isEmpty())
        return error;
    const QFileInfoList catalogues = cataloguesOf(pluginFolder);
    for (const QFileInfo &catalogue : catalogues) {
        if (isSame(languageOf(catalogue), language) && !installCatalogue(catalogue.filePath()))
            return QStringLiteral("%1: no translation catalogue").arg(catalogue.filePath());
    }
    // Numbers are written as that language writes them.
    QLocale::setDefault(QLocale(language));
    // A language that only the plug-ins speak leaves the display's own texts as they are.
    const QFileInfoList own = ownCatalogues();
    for (const QFileInfo &catalogue : own) {
        if (isSame(languageOf(catalogue), language))
            installCatalogue(catalogue.filePath());
    }
    return {};
}
