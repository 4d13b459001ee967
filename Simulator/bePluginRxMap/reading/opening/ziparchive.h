#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <vector>

/// The files in a .zip archive (APPNOTE.TXT 6.3, without encryption, ZIP64 and parts). Only what is asked for is
/// unpacked, no more than the archive's directory says it has, and archives within it stay packed.
class ZipArchive {
public:
    struct Entry {
        /// With slashes, never leading out of the archive.
        QString path;
        /// Bytes once it is unpacked.
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

    /// An entry, or all that are unpacked at one time, may have so many bytes.
    static constexpr qint64 mostBytes = qint64(256) << 20;

    explicit ZipArchive(const QString &path);

    /// Whether a plain file begins as an archive does.
    static bool isArchive(const QString &path);
    /// The archive that is or holds the file of that path ("fields.zip/north/rates.shp"); empty where none does. The
    /// part behind the archive goes to `inner`.
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
