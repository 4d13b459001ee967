#include "languages.h"

#include <QCoreApplication>
#include <QTranslator>

#include <memory>

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
            auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
            if (!translator->load(catalogue.filePath()))
                return QStringLiteral("%1: no translation catalogue").arg(catalogue.filePath());
            QCoreApplication::installTranslator(translator.release());
            isFound = true;
        }
    }
    return isFound ? QString()
                   : QStringLiteral("--language %1: no catalogue for it in %2").arg(code, pluginFolder.path());
}
