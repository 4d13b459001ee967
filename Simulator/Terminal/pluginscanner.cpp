#include "pluginscanner.h"

#include "Framework/uiplugininterface.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QRegularExpression>

namespace {

/// The files that plug-ins were loaded from, by identifier.
using FileNames = QHash<QString, QString>;

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

/// The plug-in's identifier without the version, the same for every copy of it.
QString plainIdentifier(const QPluginLoader &loader)
{
    return loader.metaData().value(QStringLiteral("IID")).toString().section(QLatin1Char('/'), 0, 0);
}

/// Why the file is not to be loaded; empty when it is.
QString complaintBeforeLoading(const QString &path, const QPluginLoader &loader, const FileNames &loaded)
{
    if (!isSharedLibrary(path))
        return QStringLiteral("is no shared library");
    const QString complaint = metadataComplaint(loader);
    const QString identifier = plainIdentifier(loader);
    // Two copies would draw and say everything twice.
    if (complaint.isEmpty() && loaded.contains(identifier))
        return QStringLiteral("is the same plug-in as %1, \"%2\"").arg(loaded.value(identifier), identifier);
    return complaint;
}

QString line(const QString &path, const QString &reason)
{
    return QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), reason.simplified());
}

} // namespace

PluginScanner::Findings PluginScanner::scan(const QDir &folder)
{
    Findings findings;
    FileNames loaded;
    const QStringList names = folder.entryList({QStringLiteral("*.so")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QString path = folder.absoluteFilePath(name);
        QPluginLoader loader(path);
        // A missing function must show when the library is loaded, not end the program when it is called.
        loader.setLoadHints(QLibrary::ResolveAllSymbolsHint);
        const QString complaint = complaintBeforeLoading(path, loader, loaded);
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
            loaded.insert(plainIdentifier(loader), name);
            continue;
        }
        loader.unload();
        findings.complaints.append(line(path,
                                        QStringLiteral("lacks the interface \"%1\"")
                                            .arg(QLatin1String(qobject_interface_iid<UiPluginInterface *>()))));
    }
    return findings;
}
