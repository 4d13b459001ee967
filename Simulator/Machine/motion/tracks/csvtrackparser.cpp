#include "csvtrackparser.h"

#include "pose.h"

#include <QDateTime>

#include <cmath>

namespace {

std::optional<double> number(const QByteArrayList &fields, int column)
{
    bool isNumber = false;
    const double value = fields.value(column).trimmed().toDouble(&isNumber);
    return column >= 0 && isNumber && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

std::optional<double> seconds(const QByteArrayList &fields, int column)
{
    if (const auto plain = number(fields, column))
        return plain;
    const QString text = QString::fromUtf8(fields.value(column).trimmed());
    QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs);
    // The machine's clock and its time zone have no part in a track.
    if (moment.timeSpec() == Qt::LocalTime)
        moment.setTimeSpec(Qt::UTC);
    return moment.isValid() ? std::optional<double>(double(moment.toMSecsSinceEpoch()) / 1000.0) : std::nullopt;
}

} // namespace

QString CsvTrackParser::readHead(const QByteArrayList &names)
{
    QByteArrayList plain;
    for (const QByteArray &name : names)
        plain.append(name.trimmed().toLower());
    hasHead = true;
    time = plain.indexOf("time");
    heading = plain.indexOf("heading");
    speed = plain.indexOf("speed");
    working = plain.indexOf("working");
    isInDegrees = plain.contains("lon") && plain.contains("lat");
    x = plain.indexOf(isInDegrees ? "lon" : "x");
    y = plain.indexOf(isInDegrees ? "lat" : "y");
    if (time < 0 || x < 0 || y < 0)
        return TrackParser::tr("is no head with \"time\" and \"x\", \"y\" or \"lon\", \"lat\"");
    return {};
}

QString CsvTrackParser::read(const QByteArray &line, std::vector<TrackPoint> &points)
{
    const QByteArrayList fields = line.split(',');
    if (!hasHead)
        return readHead(fields);
    const auto moment = seconds(fields, time);
    if (!moment)
        return TrackParser::tr("its time is none");
    TrackPoint point;
    point.time = *moment;
    point.isInDegrees = isInDegrees;
    // A row without coordinates stands for a time without a position.
    point.hasFix = !fields.value(x).trimmed().isEmpty() || !fields.value(y).trimmed().isEmpty();
    const auto across = number(fields, x);
    const auto along = number(fields, y);
    const bool isPlace =
        across && along && (!isInDegrees || (std::fabs(*across) <= 180.0 && std::fabs(*along) <= 90.0));
    if (point.hasFix && !isPlace)
        return TrackParser::tr("its position is none");
    if (point.hasFix)
        point.place = QPointF(*across, *along);
    if (const auto degrees = number(fields, heading))
        point.heading = radiansOf(*degrees);
    if (const auto driven = number(fields, speed))
        point.speed = std::fabs(*driven);
    if (const auto isDown = number(fields, working))
        point.working = *isDown != 0.0;
    points.push_back(point);
    return {};
}
