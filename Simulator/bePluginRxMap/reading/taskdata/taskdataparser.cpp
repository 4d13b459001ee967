#include "taskdataparser.h"

#include "Backend/backendtext.h"
#include "taskdatafolder.h"

#include <cmath>
#include <limits>
#include <utility>

namespace {

/// The most bytes of all XML together. Large farms' files have a few millions.
constexpr qint64 mostBytes = 100 << 20;
constexpr int mostFiles = 1000;
constexpr qint64 lowest = std::numeric_limits<qint32>::min();
constexpr qint64 highest = std::numeric_limits<qint32>::max();
constexpr double greatest = std::numeric_limits<double>::max();

constexpr int boundaryPolygon = 1;
constexpr int exteriorRing = 1;
constexpr int interiorRing = 2;

QString noted(const QString &place, const QString &text)
{
    return QStringLiteral("%1: %2").arg(place, text);
}

} // namespace

TaskDataParser::TaskDataParser(const TaskDataFolder &taskDataFolder)
    : folder(taskDataFolder)
    , bytesLeft(mostBytes)
{
}

bool TaskDataParser::fail(const QString &text)
{
    reason = text;
    return false;
}

QString TaskDataParser::place() const
{
    return BackendText::tr("%1, line %2").arg(file, QString::number(xml->lineNumber()));
}

void TaskDataParser::note(const QString &what, QString &problem) const
{
    if (problem.isEmpty())
        problem = noted(place(), what);
}

bool TaskDataParser::parse(TaskData &taskData)
{
    data = &taskData;
    return parseFile(folder.mainFile());
}

bool TaskDataParser::parseFile(const QString &name)
{
    QByteArray bytes;
    QString error;
    if (!folder.read(name, bytesLeft, bytes, error))
        return fail(error);
    bytesLeft -= bytes.size();
    files.insert(name);
    QXmlStreamReader reader(bytes);
    // A file may refer to others in the middle of its content.
    QXmlStreamReader *const outer = std::exchange(xml, &reader);
    const QString outerFile = std::exchange(file, name);
    bool isFine = true;
    if (reader.readNextStartElement()) {
        const bool isMain = reader.name() == QLatin1String("ISO11783_TaskData");
        if (!isMain && reader.name() != QLatin1String("XFC"))
            isFine = fail(noted(file, BackendText::tr("holds no task data but <%1>").arg(reader.name().toString())));
        if (isMain)
            readVersion();
        while (isFine && reader.readNextStartElement())
            isFine = readTopElement();
    }
    if (isFine && reader.hasError())
        isFine = fail(noted(place(), reader.errorString().simplified()));
    xml = outer;
    file = outerFile;
    return isFine;
}

void TaskDataParser::readVersion()
{
    const QString version = text("VersionMajor");
    bool isNumber = false;
    const int major = version.toInt(&isNumber);
    if (!isNumber || major < 2 || major > 4)
        data->warnings.append(noted(
            place(), BackendText::tr("version \"%1\" of task data is not known, read as version 4").arg(version)));
}

bool TaskDataParser::readTopElement()
{
    const QStringRef name = xml->name();
    if (name == QLatin1String("XFR"))
        return readReference();
    if (name == QLatin1String("TSK"))
        readTask();
    else if (name == QLatin1String("PFD"))
        readField();
    else if (name == QLatin1String("VPN"))
        readPresentation();
    else {
        if (name == QLatin1String("PDT"))
            data->products.insert(text("A"), text("B"));
        xml->skipCurrentElement();
    }
    return true;
}

bool TaskDataParser::readReference()
{
    const QString wanted = text("A");
    const QString where = place();
    xml->skipCurrentElement();
    const QString name = folder.find(wanted, QStringLiteral("XML"));
    if (name.isEmpty())
        return fail(noted(where, BackendText::tr("there is no file %1.XML beside it").arg(wanted)));
    if (files.contains(name))
        return fail(noted(where, BackendText::tr("the reference to %1 goes round in a circle").arg(name)));
    if (files.size() >= mostFiles)
        return fail(noted(where, BackendText::tr("refers to more than %1 files").arg(mostFiles)));
    return parseFile(name);
}

void TaskDataParser::readTask()
{
    Task task;
    task.id = text("A");
    task.designator = text("B");
    task.field = text("E");
    const auto zone = [this, &task](const char *attribute) {
        return static_cast<int>(whole(attribute, 0, 254, Task::noZone, task.problem));
    };
    task.defaultZone = zone("H");
    task.positionLostZone = zone("I");
    task.outOfFieldZone = zone("J");
    while (xml->readNextStartElement()) {
        if (xml->name() == QLatin1String("TZN"))
            readZone(task);
        else if (xml->name() == QLatin1String("GRD"))
            readGrid(task);
        else
            xml->skipCurrentElement();
    }
    data->tasks.push_back(std::move(task));
}

void TaskDataParser::readZone(Task &task)
{
    TreatmentZone zone;
    zone.code = static_cast<int>(whole("A", 0, highest, Task::noZone, task.problem));
    if (zone.code == Task::noZone)
        note(BackendText::tr("the treatment zone has no code"), task.problem);
    while (xml->readNextStartElement()) {
        if (xml->name() == QLatin1String("PDV"))
            readValue(zone, task.problem);
        else if (xml->name() == QLatin1String("PLN"))
            zone.polygons.push_back(readPolygon(task.problem));
        else
            xml->skipCurrentElement();
    }
    task.zones.push_back(std::move(zone));
}

void TaskDataParser::readValue(TreatmentZone &zone, QString &problem)
{
    ProcessValue value;
    bool isNumber = false;
    value.number = text("A").toInt(&isNumber, 16);
    if (!isNumber || value.number < 0)
        note(BackendText::tr("A=\"%1\" of PDV is no hexadecimal number").arg(text("A")), problem);
    value.value = whole("B", lowest, highest, ProcessValue::none, problem);
    value.product = text("C");
    value.device = text("D");
    value.presentation = text("E");
    zone.values.push_back(value);
    xml->skipCurrentElement();
}

void TaskDataParser::readGrid(Task &task)
{
    TaskGrid grid;
    grid.place = place();
    grid.south = number("A", -90.0, 90.0, task.problem);
    grid.west = number("B", -180.0, 180.0, task.problem);
    grid.cellHeight = number("C", 0.0, 1.0, task.problem);
    grid.cellWidth = number("D", 0.0, 1.0, task.problem);
    grid.columns = whole("E", 1, highest, 0, task.problem);
    grid.rows = whole("F", 1, highest, 0, task.problem);
    grid.file = text("G");
    grid.type = static_cast<int>(whole("I", 1, 2, 0, task.problem));
    grid.zone = static_cast<int>(whole("J", 0, 254, Task::noZone, task.problem));
    if (!(grid.cellHeight > 0.0 && grid.cellWidth > 0.0))
        note(BackendText::tr("the grid's cells have no size"), task.problem);
    if (grid.columns == 0 || grid.rows == 0 || grid.type == 0)
        note(BackendText::tr("the grid lacks its columns (E), rows (F) or type (I)"), task.problem);
    task.grids.push_back(grid);
    xml->skipCurrentElement();
}

void TaskDataParser::readField()
{
    const QString id = text("A");
    TaskField field;
    while (xml->readNextStartElement()) {
        if (xml->name() != QLatin1String("PLN") || text("A") != QString::number(boundaryPolygon)) {
            xml->skipCurrentElement();
            continue;
        }
        const std::vector<TaskRing> rings = readPolygon(field.problem);
        field.boundary.insert(field.boundary.end(), rings.begin(), rings.end());
    }
    data->fields.insert(id, field);
}

std::vector<TaskRing> TaskDataParser::readPolygon(QString &problem)
{
    std::vector<TaskRing> rings;
    while (xml->readNextStartElement()) {
        if (xml->name() == QLatin1String("LSG"))
            readRing(rings, problem);
        else
            xml->skipCurrentElement();
    }
    return rings;
}

void TaskDataParser::readRing(std::vector<TaskRing> &rings, QString &problem)
{
    const int kind = static_cast<int>(whole("A", 0, highest, 0, problem));
    if (kind != exteriorRing && kind != interiorRing) {
        xml->skipCurrentElement();
        return;
    }
    TaskRing ring;
    ring.isHole = kind == interiorRing;
    while (xml->readNextStartElement()) {
        if (xml->name() == QLatin1String("PNT"))
            readPoint(ring, problem);
        else
            xml->skipCurrentElement();
    }
    rings.push_back(std::move(ring));
}

void TaskDataParser::readPoint(TaskRing &ring, QString &problem)
{
    ring.latitudes.push_back(number("C", -90.0, 90.0, problem));
    ring.longitudes.push_back(number("D", -180.0, 180.0, problem));
    xml->skipCurrentElement();
}

void TaskDataParser::readPresentation()
{
    QString problem;
    ValuePresentation presentation;
    presentation.offset = number("B", lowest, highest, problem);
    presentation.scale = number("C", 0.0, greatest, problem);
    presentation.unit = text("E");
    if (problem.isEmpty())
        data->presentations.insert(text("A"), presentation);
    xml->skipCurrentElement();
}

QString TaskDataParser::text(const char *attribute) const
{
    return xml->attributes().value(QLatin1String(attribute)).toString().trimmed();
}

double TaskDataParser::number(const char *attribute, double least, double most, QString &problem) const
{
    bool isNumber = false;
    const double value = xml->attributes().value(QLatin1String(attribute)).trimmed().toDouble(&isNumber);
    if (isNumber && value >= least && value <= most)
        return value;
    const bool isFinite = isNumber && std::isfinite(value);
    const QString line =
        isFinite ? BackendText::tr("%1=\"%2\" of %3 is out of range") : BackendText::tr("%1=\"%2\" of %3 is no number");
    note(line.arg(QLatin1String(attribute), text(attribute), xml->name().toString()), problem);
    return std::numeric_limits<double>::quiet_NaN();
}

qint64 TaskDataParser::whole(const char *attribute, qint64 least, qint64 most, qint64 otherwise, QString &problem) const
{
    const QString written = text(attribute);
    if (written.isEmpty())
        return otherwise;
    bool isNumber = false;
    const qint64 value = written.toLongLong(&isNumber);
    if (isNumber && value >= least && value <= most)
        return value;
    note(BackendText::tr("%1=\"%2\" of %3 is no whole number from %4 to %5")
             .arg(QLatin1String(attribute), written, xml->name().toString(), QString::number(least),
                  QString::number(most)),
         problem);
    return otherwise;
}
