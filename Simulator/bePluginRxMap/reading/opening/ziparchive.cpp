#include "ziparchive.h"

#include "Backend/backendtext.h"

#include <QFileInfo>
#include <QTextCodec>
#include <QtEndian>

#include <algorithm>
#include <boost/crc.hpp>
#include <cpl_conv.h>

namespace {

// Each part of an archive begins with a signature of its own.
const char fileSignature[] = "PK\x03\x04";
const char directorySignature[] = "PK\x01\x02";
const char endSignature[] = "PK\x05\x06";
constexpr int fileHeaderSize = 30;
constexpr int directoryEntrySize = 46;
constexpr int endSize = 22;
constexpr int longestComment = 0xffff;
/// No prescription needs more; an archive's directory may claim any number.
constexpr int mostEntries = 10000;
constexpr qint64 largestDirectory = qint64(16) << 20;

int shortAt(const QByteArray &bytes, int place)
{
    return qFromLittleEndian<quint16>(bytes.constData() + place);
}

quint32 longAt(const QByteArray &bytes, int place)
{
    return qFromLittleEndian<quint32>(bytes.constData() + place);
}

/// Names are in UTF-8 or in code page 850, whatever their flag says.
QString decode(const QByteArray &name)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(name.constData(), name.size(), &state);
    QTextCodec *old = QTextCodec::codecForName("IBM850");
    return (state.invalidChars == 0 && state.remainingChars == 0) || old == nullptr ? text : old->toUnicode(name);
}

quint32 checksumOf(const QByteArray &bytes)
{
    boost::crc_32_type checksum;
    checksum.process_bytes(bytes.constData(), static_cast<size_t>(bytes.size()));
    return checksum.checksum();
}

bool leavesArchive(const QString &path)
{
    return path.startsWith(QLatin1Char('/')) || path.split(QLatin1Char('/')).contains(QStringLiteral(".."));
}

} // namespace

ZipArchive::ZipArchive(const QString &path)
    : file(path)
{
}

bool ZipArchive::isArchive(const QString &path)
{
    QFile file(path);
    const QFileInfo info(path);
    // The system's own files have the size zero, and reading some never ends.
    if (!info.isFile() || info.size() == 0 || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray begin = file.read(4);
    return begin == fileSignature || begin == endSignature;
}

QString ZipArchive::find(const QString &path, QString &inner)
{
    const QString whole = QFileInfo(path).absoluteFilePath();
    for (int end = whole.size(); end > 0; end = whole.lastIndexOf(QLatin1Char('/'), end - 1)) {
        const QString outer = whole.left(end);
        if (!QFileInfo::exists(outer))
            continue;
        inner = whole.mid(end + 1);
        return isArchive(outer) ? outer : QString();
    }
    return {};
}

bool ZipArchive::fail(const QString &text)
{
    reason = text;
    return false;
}

QByteArray ZipArchive::bytesAt(qint64 offset, qint64 count)
{
    return offset >= 0 && file.seek(offset) ? file.read(count) : QByteArray();
}

bool ZipArchive::open()
{
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    const qint64 begin = qMax(qint64(0), file.size() - endSize - longestComment);
    const QByteArray tail = bytesAt(begin, endSize + longestComment);
    const int place = tail.lastIndexOf(endSignature);
    if (place < 0 || tail.size() - place < endSize)
        return fail(BackendText::tr("is an archive that is cut short"));
    const int count = shortAt(tail, place + 10);
    const qint64 size = longAt(tail, place + 12);
    if (shortAt(tail, place + 4) != 0 || count != shortAt(tail, place + 8))
        return fail(BackendText::tr("is one part of an archive"));
    if (count > mostEntries || size > largestDirectory)
        return fail(BackendText::tr("is an archive of more than %1 files").arg(mostEntries));
    // Other bytes may precede the archive; its own offsets do not count them.
    const qint64 offset = begin + place - size;
    const QByteArray directory = bytesAt(offset, size);
    if (directory.size() != size)
        return fail(BackendText::tr("is an archive with a damaged directory"));
    return readDirectory(directory, count, offset - longAt(tail, place + 16));
}

bool ZipArchive::readDirectory(const QByteArray &directory, int count, qint64 shift)
{
    for (int place = 0; count > 0; --count) {
        const bool isWhole =
            directory.size() - place >= directoryEntrySize && directory.mid(place, 4) == QByteArray(directorySignature);
        const int nameSize = isWhole ? shortAt(directory, place + 28) : 0;
        const int name = place + directoryEntrySize;
        if (!isWhole || directory.size() - name < nameSize)
            return fail(BackendText::tr("is an archive with a damaged directory"));
        Entry entry;
        entry.isEncrypted = (shortAt(directory, place + 8) & 1) != 0;
        entry.method = shortAt(directory, place + 10);
        entry.checksum = longAt(directory, place + 16);
        entry.packedSize = longAt(directory, place + 20);
        entry.size = longAt(directory, place + 24);
        entry.offset = longAt(directory, place + 42) + shift;
        // Some programs separate folders by backslashes.
        entry.path = decode(directory.mid(name, nameSize)).replace(QLatin1Char('\\'), QLatin1Char('/'));
        if (leavesArchive(entry.path))
            return fail(BackendText::tr("the path of its entry \"%1\" leaves the archive").arg(entry.path));
        if (!entry.path.endsWith(QLatin1Char('/')))
            files.push_back(entry);
        place = name + nameSize + shortAt(directory, place + 30) + shortAt(directory, place + 32);
    }
    return true;
}

const ZipArchive::Entry *ZipArchive::entry(const QString &path) const
{
    const auto found = std::find_if(files.begin(), files.end(), [&path](const Entry &any) { return any.path == path; });
    return found == files.end() ? nullptr : &*found;
}

bool ZipArchive::unpack(const Entry &entry, QByteArray &bytes)
{
    if (entry.isEncrypted)
        return fail(BackendText::tr("\"%1\" in it is encrypted").arg(entry.path));
    if (entry.size > mostBytes || entry.packedSize > mostBytes)
        return fail(
            BackendText::tr("\"%1\" in it has more than %2 MB").arg(entry.path, QString::number(mostBytes >> 20)));
    const QByteArray header = bytesAt(entry.offset, fileHeaderSize);
    const bool isHeader = header.size() == fileHeaderSize && header.startsWith(fileSignature);
    const QByteArray packed = isHeader
        ? bytesAt(entry.offset + fileHeaderSize + shortAt(header, 26) + shortAt(header, 28), entry.packedSize)
        : QByteArray();
    const bool isWhole = isHeader && packed.size() == entry.packedSize;
    if (isWhole && entry.method == 0 && entry.size == entry.packedSize && checksumOf(packed) == entry.checksum) {
        bytes = packed;
        return true;
    }
    if (isWhole && entry.method != 0 && entry.method != 8)
        return fail(BackendText::tr("\"%1\" in it is packed in a way that is not known").arg(entry.path));
    return (isWhole && entry.method == 8 && inflate(entry, packed, bytes))
        || fail(BackendText::tr("\"%1\" in it is damaged").arg(entry.path));
}

bool ZipArchive::inflate(const Entry &entry, const QByteArray &packed, QByteArray &bytes)
{
    if (entry.size == 0) {
        bytes.clear();
        return true;
    }
    // GDAL inflates whole gzip files (RFC 1952): the same bytes after a head and before checksum and size.
    QByteArray whole("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10);
    whole.append(packed);
    char end[8];
    qToLittleEndian(entry.checksum, end);
    qToLittleEndian(static_cast<quint32>(entry.size), end + 4);
    whole.append(end, sizeof end);
    bytes.resize(static_cast<int>(entry.size));
    size_t count = 0;
    const void *result = CPLZLibInflate(whole.constData(), static_cast<size_t>(whole.size()), bytes.data(),
                                        static_cast<size_t>(bytes.size()), &count);
    return result != nullptr && count == static_cast<size_t>(bytes.size());
}
