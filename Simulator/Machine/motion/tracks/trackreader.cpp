#include "trackreader.h"

#include "csvtrackparser.h"
#include "nmeaparser.h"
#include "regularfile.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 longestLine = 1000;
/// Metres per second; anything faster is a jump.
constexpr double fastest = 100.0;
/// Seconds since 1970 up to the year 10000; no clock shows a later time.
constexpr double latest = 253402300800.0;

} // namespace

TrackReader::TrackReader(const QString &path, const std::shared_ptr<const FieldPlane> &givenPlane)
    : file(path)
    , plane(givenPlane)
{
    problem = regularFileProblem(path);
    if (problem.isEmpty() && !file.open(QIODevice::ReadOnly))
        problem = file.errorString();
    if (!problem.isEmpty())
        problem = QStringLiteral("%1: %2").arg(path, problem);
}

TrackReader::~TrackReader() = default;

bool TrackReader::mayRead(const QString &path)
{
    QFile file(path);
    // An empty file may be one of the system's, and reading those may never end.
    if (!regularFileProblem(path).isEmpty() || file.size() == 0 || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = file.read(longestLine).trimmed().split('\n').first().trimmed();
    if (line.startsWith('$')) {
        constexpr int longestName = 8;
        const int comma = line.indexOf(',');
        return comma > 1 && comma <= longestName && !line.left(comma).contains(' ');
    }
    std::vector<TrackPoint> none;
    return CsvTrackParser().read(line, none).isEmpty();
}

Result<TrackReader::Summary> TrackReader::check(const QString &path, const std::shared_ptr<const FieldPlane> &plane,
                                                const Progress &progress)
{
    TrackReader reader(path, plane);
    reader.progress = progress;
    TrackPoint point;
    bool hasPlace = false;
    while (reader.next(point))
        hasPlace = hasPlace || point.hasFix;
    if (!reader.error().isEmpty())
        return Result<Summary>::failure(reader.error());
    if (hasPlace)
        return {reader.told, {}};
    return Result<Summary>::failure(reader.told.firstBad.isEmpty()
                                        ? tr("%1: holds no position").arg(path)
                                        : tr("%1: holds no position; %2").arg(path, reader.told.firstBad));
}

bool TrackReader::mayGoOn()
{
    constexpr qint64 linesPerReport = 1000;
    const bool isDue = progress && lineNumber > 0 && lineNumber % linesPerReport == 0;
    if (isDue && !progress(double(file.pos()) / double(std::max(file.pos(), file.size()))))
        problem = QStringLiteral("%1: was not read to its end").arg(file.fileName());
    return problem.isEmpty();
}

bool TrackReader::readLine(QByteArray &line)
{
    line = file.readLine(longestLine);
    if (line.isEmpty())
        return false;
    ++lineNumber;
    bool isTooLong = false;
    while (!line.endsWith('\n') && !file.atEnd()) {
        isTooLong = true;
        line = file.readLine(longestLine);
        if (line.isEmpty())
            break;
    }
    if (isTooLong) {
        complain(tr("is longer than %1 characters").arg(longestLine));
        line.clear();
    }
    line = line.trimmed();
    return true;
}

void TrackReader::complain(const QString &reason)
{
    if (told.badLines++ == 0)
        told.firstBad = tr("line %1: %2").arg(lineNumber).arg(reason);
}

QString TrackReader::misfit(TrackPoint &point)
{
    if (std::fabs(point.time) >= latest)
        return tr("its time is beyond the year 9999");
    if (lastTime && point.time < *lastTime)
        return tr("goes back in time");
    if (!point.hasFix)
        return {};
    if (point.isInDegrees) {
        const auto place = plane != nullptr ? plane->toField(point.place) : std::nullopt;
        if (!place)
            return plane != nullptr ? tr("lies off the field's plane")
                                    : tr("is in degrees, and no field is loaded to place them");
        point.place = *place;
        point.isInDegrees = false;
    }
    if (std::hypot(point.place.x(), point.place.y()) > FieldPlane::reach)
        return tr("lies off the field's plane");
    if (!lastPlaced)
        return {};
    const QPointF moved = point.place - lastPlaced->place;
    const double far = std::hypot(moved.x(), moved.y());
    return far > fastest * (point.time - lastPlaced->time) ? tr("jumps by %1 m").arg(far, 0, 'f', 0) : QString();
}

bool TrackReader::takeWaiting(TrackPoint &point)
{
    while (nextWaiting < waiting.size()) {
        point = waiting[nextWaiting++];
        const QString complaint = misfit(point);
        if (!complaint.isEmpty()) {
            complain(complaint);
            continue;
        }
        if (told.points++ == 0)
            firstTime = point.time;
        lastTime = point.time;
        told.seconds = point.time - firstTime;
        if (point.hasFix)
            lastPlaced = point;
        return true;
    }
    waiting.clear();
    nextWaiting = 0;
    return false;
}

bool TrackReader::readOn()
{
    if (!mayGoOn())
        return false;
    QByteArray line;
    if (!readLine(line)) {
        if (parser)
            parser->finish(waiting);
        return !waiting.empty();
    }
    if (line.isEmpty())
        return true;
    if (!parser)
        parser = line.startsWith('$') ? std::unique_ptr<TrackParser>(std::make_unique<NmeaParser>())
                                      : std::make_unique<CsvTrackParser>();
    const QString complaint = parser->read(line, waiting);
    if (!complaint.isEmpty())
        complain(complaint);
    return true;
}

bool TrackReader::next(TrackPoint &point)
{
    if (!problem.isEmpty())
        return false;
    do {
        if (takeWaiting(point))
            return true;
    } while (readOn());
    return false;
}
