#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The folder, or the folder within an archive (.zip), that task data lies in. Names of files are found in any case.
/// Archives are read in place.
class TaskDataFolder {
public:
    /// `path`: a folder that holds TASKDATA.XML, an .xml file, or an archive that holds TASKDATA.XML. Without any of
    /// these, mainFile() is empty.
    explicit TaskDataFolder(const QString &path);

    /// Name of the file to begin with.
    const QString &mainFile() const { return main; }
    /// The name with that extension as it is spelled in the folder, whatever the case; empty when there is no such
    /// file.
    QString find(const QString &baseName, const QString &extension) const;
    /// Reads a file of the folder. False, with the reason in `error`, when it cannot be read or has more than `most`
    /// bytes.
    bool read(const QString &name, qint64 most, QByteArray &bytes, QString &error) const;
    /// Size of a file of the folder as the folder says it; negative where it cannot.
    qint64 sizeOf(const QString &name) const;

private:
    void takeFolder(const QString &path);
    void takeArchive(const QString &path);

    /// In front of names, for GDAL.
    QString prefix;
    QStringList names;
    QString main;
};
