#include "pluginscanner.h"

#include "Framework/uiplugininterface.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QRegularExpression>

namespace {

bool isSharedLibrary(const QString &path)
{
    static const QByteArray magic("\x7f"
                                  "ELF");
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(magic.size()) == magic;
}

/// Why the file's metadata rule it out; empty when they do not.
QString metadataComplaint(const QPluginLoader &loader)
{
    static const QRegularExpression wanted(QStringLiteral("^com\\.orvik\\.uiPlugin\\w+/\\d+\\.\\d+$"));
    const QJsonObject metadata = loader.metaData();
    if (metadata.isEmpty())
        return QStringLiteral("is no Qt plug-in");
    const QString identifier = metadata.value(QStringLiteral("IID")).toString();
    if (!wanted.match(identifier).hasMatch())
        return QStringLiteral("has the identifier \"%1\", which is none of a user-interface plug-in").arg(identifier);
    return {};
}

QString line(const QString &path, const QString &reason)
{
    return QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), reason.simplified());
}

} // namespace

PluginScanner::Findings PluginScanner::scan(const QDir &folder)
{
    Findings findings;
    const QStringList names = folder.entryList({QStringLiteral("*.so")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QString path = folder.absoluteFilePath(name);
        if (!isSharedLibrary(path)) {
            findings.complaints.append(line(path, QStringLiteral("is no shared library")));
            continue;
        }
        QPluginLoader loader(path);
        // A function that is missing must show now, not end the program when it is called.
        loader.setLoadHints(QLibrary::ResolveAllSymbolsHint);
        const QString complaint = metadataComplaint(loader);
        if (!complaint.isEmpty()) {
            findings.complaints.append(line(path, complaint));
            continue;
        }
        QObject *instance = loader.instance();
        if (instance == nullptr) {
            findings.complaints.append(line(path, QStringLiteral("cannot be loaded: ") + loader.errorString()));
            continue;
        }
        if (auto *plugin = qobject_cast<UiPluginInterface *>(instance)) {
            findings.plugins.append({path, plugin});
            continue;
        }
        loader.unload();
        findings.complaints.append(line(path,
                                        QStringLiteral("lacks the interface \"%1\"")
                                            .arg(QLatin1String(qobject_interface_iid<UiPluginInterface *>()))));
    }
    return findings;
}
