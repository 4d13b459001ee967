#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

class ZipArchive;

/// The folder, or the folder within an archive, that task data lies in. Names of files are found in any case. Archives
/// are read in place.
class TaskDataFolder {
public:
    /// `path`: a folder that holds TASKDATA.XML, an .xml file, or an archive that holds one TASKDATA.XML; the path may
    /// go on in the archive. Without any of these, mainFile() is empty.
    explicit TaskDataFolder(const QString &path);
    ~TaskDataFolder();

    /// Name of the file to begin with.
    const QString &mainFile() const { return main; }
    /// Whether files of that name are where task data begins.
    static bool isMainFile(const QString &name);
    /// The name with that extension as it is spelled in the folder, whatever the case; empty when there is no such
    /// file.
    QString find(const QString &baseName, const QString &extension) const;
    /// Reads a file of the folder. False, with the reason in `error`, when it cannot be read or has more than `most`
    /// bytes.
    bool read(const QString &name, qint64 most, QByteArray &bytes, QString &error) const;
    /// Size of a file as the folder states it; negative if it does not.
    qint64 sizeOf(const QString &name) const;

private:
    Q_DISABLE_COPY(TaskDataFolder)

    void takeFolder(const QString &path);
    void takeArchive(const QString &path);
    bool readFile(const QString &name, QByteArray &bytes, QString &error) const;
    bool unpack(const QString &name, QByteArray &bytes, QString &error) const;

    /// Goes before names: a folder, or a folder within the archive.
    QString prefix;
    /// Null for a folder.
    std::unique_ptr<ZipArchive> archive;
    QStringList names;
    QString main;
};
