#include "tablecodepage.h"

#include "shapefilecheck.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int headerSize = 32;
/// Where the header names the code page: 0 for none, and 0x57 for whatever the writing computer used.
constexpr int codePagePlace = 29;
constexpr char anyCodePage = 0x57;
/// Enough to hold all names of columns and some records.
constexpr qint64 lookedAt = 256 << 10;
/// Bytes from 0x80 to below this one are letters in code page 850; in Latin-1 they are signs that occur in no word.
constexpr int firstSign = 0xa6;

/// The names of the columns, and the records.
QByteArray textsOf(const QByteArray &table)
{
    constexpr int entrySize = 32;
    constexpr int nameSize = 11;
    constexpr char lastEntry = 0x0d;
    QByteArray texts;
    for (int place = headerSize; place < table.size() && table[place] != lastEntry; place += entrySize)
        texts += table.mid(place, nameSize) + ' ';
    return texts + table.mid(qFromLittleEndian<quint16>(table.constData() + 8));
}

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U;
}

/// Length in bytes of a letter that begins with this byte; 1 if none does.
int lengthOf(char first)
{
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0xc2 || byte > 0xf4)
        return 1;
    return byte >= 0xf0 ? 4 : byte >= 0xe0 ? 3 : 2;
}

/// Whether there are letters of several bytes, and apart from those only plain ones. Fields are cut off at their
/// length, perhaps within a letter: a cut letter may stand before the space or zero that follows a field.
bool isUtf8(const QByteArray &bytes)
{
    int letters = 0;
    for (int i = 0; i < bytes.size();) {
        const int length = lengthOf(bytes[i]);
        if (length == 1 && static_cast<unsigned char>(bytes[i]) >= 0x80)
            return false;
        int end = i + 1;
        while (end < bytes.size() && end < i + length && isContinuation(bytes[end]))
            ++end;
        const bool isWhole = end == i + length;
        const bool isCut = end == bytes.size() || bytes[end] == ' ' || bytes[end] == '\0';
        if (!isWhole && !isCut)
            return false;
        letters += isWhole && length > 1 ? 1 : 0;
        i = end;
    }
    return letters > 0;
}

} // namespace

QByteArray TableCodePage::guess(const QString &shapePath)
{
    const bool isSaid = !ShapefileCheck::partPath(shapePath, QStringLiteral("cpg")).isEmpty();
    QFile table(ShapefileCheck::partPath(shapePath, QStringLiteral("dbf")));
    return !isSaid && table.open(QIODevice::ReadOnly) ? guess(table.read(lookedAt)) : QByteArray();
}

QByteArray TableCodePage::guess(const QByteArray &table)
{
    if (table.size() < headerSize)
        return {};
    const char said = table[codePagePlace];
    if (said != 0 && said != anyCodePage)
        return {};
    const QByteArray content = textsOf(table);
    const auto isForeign = [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; };
    if (!std::any_of(content.begin(), content.end(), isForeign))
        return {};
    if (isUtf8(content))
        return "UTF-8";
    const bool hasEarlyLetters = std::any_of(content.begin(), content.end(), [&isForeign](char byte) {
        return isForeign(byte) && static_cast<unsigned char>(byte) < firstSign;
    });
    return hasEarlyLetters ? "CP850" : "ISO-8859-1";
}
