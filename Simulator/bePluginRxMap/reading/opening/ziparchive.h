#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <vector>

/// The files in a .zip archive (APPNOTE.TXT 6.3, without encryption, ZIP64 and parts). Unpacks only what is asked for,
/// never more than the size in the archive's directory; archives within it stay packed.
class ZipArchive {
public:
    struct Entry {
        /// With slashes, never leading out of the archive.
        QString path;
        /// Size in bytes when unpacked.
        qint64 size = 0;

        QString name() const { return path.section(QLatin1Char('/'), -1); }

    private:
        friend class ZipArchive;
        qint64 packedSize = 0;
        qint64 offset = 0; ///< Of its header from the archive's begin.
        quint32 checksum = 0;
        int method = 0;
        bool isEncrypted = false;
    };

    /// An entry, or all that are unpacked at one time, may have this many bytes at most.
    static constexpr qint64 mostBytes = qint64(256) << 20;

    explicit ZipArchive(const QString &path);

    /// Whether it is a plain file that begins like an archive.
    static bool isArchive(const QString &path);
    /// Path of the archive that is, or holds, the file of that path ("fields.zip/north/rates.shp"); empty if there is
    /// none. `inner` gets the part of the path after the archive.
    static QString find(const QString &path, QString &inner);

    /// Reads the directory. False, with the reason in error(), when the archive cannot be used.
    bool open();
    /// Files, no folders, in the directory's order.
    const std::vector<Entry> &entries() const { return files; }
    /// The first one with exactly that path; null when there is none.
    const Entry *entry(const QString &path) const;
    /// False, with the reason in error(), when the entry is damaged or larger than it says.
    bool unpack(const Entry &entry, QByteArray &bytes);
    QString error() const { return reason; }

private:
    bool fail(const QString &text);
    QByteArray bytesAt(qint64 offset, qint64 count);
    bool readDirectory(const QByteArray &directory, int count, qint64 shift);
    bool inflate(const Entry &entry, const QByteArray &packed, QByteArray &bytes);

    QFile file;
    std::vector<Entry> files;
    QString reason;
};
