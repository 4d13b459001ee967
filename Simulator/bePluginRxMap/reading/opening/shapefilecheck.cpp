#include "shapefilecheck.h"

#include "Backend/backendtext.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace {

constexpr int shapeHeaderSize = 100;
constexpr int tableHeaderSize = 32;
constexpr qint32 shapeFileCode = 9994;

/// Opening a pipe in place of a part could wait forever.
QString partsProblem(const QString &shapePath)
{
    for (const char *extension : {"shx", "dbf", "prj", "cpg"}) {
        const QString part = ShapefileCheck::partPath(shapePath, QLatin1String(extension));
        if (!part.isEmpty() && !QFileInfo(part).isFile())
            return BackendText::tr("the .%1 beside it is no plain file").arg(QLatin1String(extension));
    }
    return {};
}

QByteArray readHeader(const QString &path, int size)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(size) : QByteArray();
}

QString shapeKindProblem(quint32 kind)
{
    switch (kind) {
    case 0:
        return BackendText::tr("holds no shapes");
    case 5:
    case 15:
    case 25:
        return {};
    case 1:
    case 8:
    case 11:
    case 18:
    case 21:
    case 28:
        return BackendText::tr("holds points, not polygons");
    case 3:
    case 13:
    case 23:
        return BackendText::tr("holds lines, not polygons");
    default:
        return BackendText::tr("holds shapes of unknown kind %1").arg(kind);
    }
}

QString shapesProblem(const QString &path)
{
    const QByteArray header = readHeader(path, shapeHeaderSize);
    if (header.isEmpty())
        return BackendText::tr("cannot be read or is empty");
    if (header.size() < 4 || qFromBigEndian<qint32>(header.constData()) != shapeFileCode)
        return BackendText::tr("is no Shapefile");
    if (header.size() < shapeHeaderSize)
        return BackendText::tr("is cut short within its header");
    const qint64 size = QFileInfo(path).size();
    const qint64 declared = 2 * static_cast<qint64>(qFromBigEndian<quint32>(header.constData() + 24));
    if (size < declared)
        return BackendText::tr("is cut short: %1 of %2 bytes").arg(size).arg(declared);
    return shapeKindProblem(qFromLittleEndian<quint32>(header.constData() + 32));
}

/// Number of shapes by the index; negative when there is no usable index.
qint64 shapeCount(const QString &indexPath)
{
    const qint64 size = indexPath.isEmpty() ? 0 : QFileInfo(indexPath).size();
    return size < shapeHeaderSize ? -1 : (size - shapeHeaderSize) / 8;
}

QString tableProblem(const QString &path, qint64 shapes)
{
    const QByteArray header = readHeader(path, tableHeaderSize);
    if (header.size() < tableHeaderSize)
        return BackendText::tr("the .dbf beside it is cut short within its header");
    const qint64 rows = qFromLittleEndian<quint32>(header.constData() + 4);
    const qint64 begin = qFromLittleEndian<quint16>(header.constData() + 8);
    const qint64 rowSize = qFromLittleEndian<quint16>(header.constData() + 10);
    if (rows < shapes)
        return BackendText::tr("the .dbf beside it has %1 rows for %2 shapes").arg(rows).arg(shapes);
    const qint64 size = QFileInfo(path).size();
    if (size < begin + rows * rowSize)
        return BackendText::tr("the .dbf beside it is cut short: %1 of %2 bytes").arg(size).arg(begin + rows * rowSize);
    return {};
}

} // namespace

QString ShapefileCheck::partPath(const QString &shapePath, const QString &extension)
{
    const QString base = shapePath.left(shapePath.size() - QFileInfo(shapePath).suffix().size());
    for (const QString &candidate : {QString(base + extension), QString(base + extension.toUpper())}) {
        if (QFileInfo::exists(candidate))
            return candidate;
    }
    return {};
}

QString ShapefileCheck::problem(const QString &path)
{
    const QString shapes = shapesProblem(path);
    if (!shapes.isEmpty())
        return shapes;
    const QString parts = partsProblem(path);
    if (!parts.isEmpty())
        return parts;
    const qint64 count = shapeCount(partPath(path, QStringLiteral("shx")));
    if (count < 0)
        return BackendText::tr("there is no usable .shx beside it");
    const QString table = partPath(path, QStringLiteral("dbf"));
    if (table.isEmpty())
        return BackendText::tr("there is no .dbf beside it");
    return tableProblem(table, count);
}

QString ShapefileCheck::definitionFile(const QString &path)
{
    const QString part = partPath(path, QStringLiteral("prj"));
    QFile file(part);
    const bool saysSomething = !part.isEmpty() && file.open(QIODevice::ReadOnly) && !file.readAll().trimmed().isEmpty();
    return saysSomething ? QFileInfo(part).fileName() : QString();
}
