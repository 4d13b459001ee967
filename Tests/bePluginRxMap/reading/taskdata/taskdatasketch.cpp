#include "taskdatasketch.h"

#include "files.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <cpl_conv.h>

namespace {

QByteArray degrees(double value)
{
    return QByteArray::number(value, 'f', 9);
}

QByteArray ring(const TaskDataSketch::Square &square, bool isHole)
{
    QByteArray points;
    for (const auto &[x, y] : {std::pair(0, 0), std::pair(1, 0), std::pair(1, 1), std::pair(0, 1), std::pair(0, 0)})
        points += "<PNT A=\"2\" C=\"" + degrees(square.latitude + y * square.side) + "\" D=\""
            + degrees(square.longitude + x * square.side) + "\"/>\n";
    return QByteArray("<LSG A=\"") + (isHole ? "2" : "1") + "\">" + points + "</LSG>";
}

} // namespace

QByteArray TaskDataSketch::xml() const
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ISO11783_TaskData VersionMajor=\""
        + QByteArray::number(version) + "\" VersionMinor=\"0\" DataTransferOrigin=\"1\">\n" + content
        + "</ISO11783_TaskData>\n";
}

bool TaskDataSketch::write(const QString &folder) const
{
    bool isWritten = QDir().mkpath(folder) && !writeFile(folder + '/' + QString::fromLatin1(mainFile), xml()).isEmpty();
    for (auto file = files.begin(); file != files.end(); ++file)
        isWritten = !writeFile(folder + '/' + QString::fromLatin1(file.key()), *file).isEmpty() && isWritten;
    return isWritten;
}

bool TaskDataSketch::writeArchive(const QString &path, const QByteArray &folder) const
{
    void *archive = CPLCreateZip(path.toUtf8().constData(), nullptr);
    QMap<QByteArray, QByteArray> all = files;
    all.insert(mainFile, xml());
    bool isWritten = archive != nullptr;
    for (auto file = all.begin(); file != all.end() && isWritten; ++file)
        isWritten = CPLCreateFileInZip(archive, (folder + file.key()).constData(), nullptr) == CE_None
            && CPLWriteFileInZip(archive, file->constData(), file->size()) == CE_None
            && CPLCloseFileInZip(archive) == CE_None;
    return CPLCloseZip(archive) == CE_None && isWritten;
}

QByteArray TaskDataSketch::value(int number, qint64 steps, const QByteArray &attributes)
{
    return "<PDV A=\"" + QByteArray::number(number, 16).toUpper().rightJustified(4, '0') + "\" B=\""
        + QByteArray::number(steps) + "\" " + attributes + "/>\n";
}

QByteArray TaskDataSketch::zone(int code, const QByteArray &content)
{
    return "<TZN A=\"" + QByteArray::number(code) + "\">\n" + content + "</TZN>\n";
}

QByteArray TaskDataSketch::polygon(const std::vector<Square> &squares, int kind)
{
    QByteArray rings;
    for (const Square &square : squares)
        rings += ring(square, !rings.isEmpty());
    return "<PLN A=\"" + QByteArray::number(kind) + "\">" + rings + "</PLN>\n";
}

QByteArray TaskDataSketch::grid(int columns, int rows, int type, const QByteArray &attributes)
{
    return "<GRD A=\"48\" B=\"11\" C=\"1.0E-3\" D=\"0.001\" E=\"" + QByteArray::number(columns) + "\" F=\""
        + QByteArray::number(rows) + "\" G=\"GRD00001\" I=\"" + QByteArray::number(type) + "\" " + attributes + "/>\n";
}

QByteArray TaskDataSketch::task(const QByteArray &name, const QByteArray &content, const QByteArray &attributes)
{
    return "<TSK A=\"" + name + "\" G=\"1\" " + attributes + ">\n" + content + "</TSK>\n";
}

QByteArray TaskDataSketch::steps(const std::vector<qint32> &values)
{
    QByteArray bytes;
    for (const qint32 value : values) {
        const qint32 little = qToLittleEndian(value);
        bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
    }
    return bytes;
}
