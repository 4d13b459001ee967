#include "nmeaparser.h"

#include "pose.h"

#include <cmath>

namespace {

constexpr double secondsOfDay = 86400.0;
constexpr double metresPerSecondOfKnot = 1852.0 / 3600.0;

/// Takes out the sentence between "$" and "*"; the reason when the line is not a sentence, or damaged.
QString unpack(const QByteArray &line, QByteArray &body)
{
    const QByteArray text = line.trimmed();
    if (!text.startsWith('$'))
        return TrackParser::tr("is no NMEA 0183 sentence");
    const int star = text.indexOf('*');
    body = text.mid(1, star < 0 ? -1 : star - 1);
    if (star < 0)
        return {};
    unsigned char sum = 0;
    for (const char c : qAsConst(body))
        sum ^= static_cast<unsigned char>(c);
    bool isNumber = false;
    const uint stated = text.mid(star + 1).toUInt(&isNumber, 16);
    return isNumber && stated == sum ? QString() : TrackParser::tr("its checksum is wrong");
}

/// hhmmss.ss as seconds of the day.
std::optional<double> timeOfDay(const QByteArray &text)
{
    bool hoursOk = false;
    bool minutesOk = false;
    bool secondsOk = false;
    const int hours = text.left(2).toInt(&hoursOk);
    const int minutes = text.mid(2, 2).toInt(&minutesOk);
    const double seconds = text.mid(4).toDouble(&secondsOk);
    const bool isTime = hoursOk && minutesOk && secondsOk && hours >= 0 && hours < 24 && minutes >= 0 && minutes < 60
        && seconds >= 0.0 && seconds < 61.0;
    return isTime ? std::optional<double>(3600.0 * hours + 60.0 * minutes + seconds) : std::nullopt;
}

/// (d)ddmm.mmm and the hemisphere's letter as degrees.
std::optional<double> degrees(const QByteArray &text, const QByteArray &hemisphere, const char *letters, double most)
{
    bool isNumber = false;
    const double packed = text.toDouble(&isNumber);
    const double whole = std::floor(packed / 100.0);
    const double minutes = packed - 100.0 * whole;
    const double value = whole + minutes / 60.0;
    const bool isSouthOrWest = hemisphere == QByteArray(1, letters[1]);
    const bool isKnown = isSouthOrWest || hemisphere == QByteArray(1, letters[0]);
    if (!isNumber || !isKnown || !(packed >= 0.0 && minutes < 60.0 && value <= most))
        return {};
    return isSouthOrWest ? -value : value;
}

} // namespace

QString NmeaParser::read(const QByteArray &line, std::vector<TrackPoint> &points)
{
    QByteArray body;
    const QString problem = unpack(line, body);
    if (!problem.isEmpty())
        return problem;
    const QByteArrayList fields = body.split(',');
    // A talker of two letters, then the kind of sentence.
    const QByteArray kind = fields.first().size() == 5 ? fields.first().mid(2) : QByteArray();
    const int wanted = kind == "GGA" ? 7 : kind == "RMC" ? 9 : 1;
    if (fields.size() < wanted)
        return TrackParser::tr("is cut off");
    if (kind == "GGA") {
        const QByteArray quality = fields.value(6);
        return readPosition(fields, 1, 2, !quality.isEmpty() && quality != "0", points);
    }
    if (kind == "RMC") {
        const QString complaint = readPosition(fields, 1, 3, fields.value(2) == "A", points);
        if (complaint.isEmpty())
            readCourse(fields.value(8), fields.value(7));
        return complaint;
    }
    if (kind == "VTG")
        readCourse(fields.value(1), fields.value(5));
    return {};
}

QString NmeaParser::readPosition(const QByteArrayList &fields, int time, int place, bool hasFix,
                                 std::vector<TrackPoint> &points)
{
    const std::optional<double> day = timeOfDay(fields.value(time));
    if (!day)
        return TrackParser::tr("its time is none");
    TrackPoint point;
    point.isInDegrees = true;
    point.hasFix = hasFix;
    if (hasFix) {
        const auto latitude = degrees(fields.value(place), fields.value(place + 1), "NS", 90.0);
        const auto longitude = degrees(fields.value(place + 2), fields.value(place + 3), "EW", 180.0);
        if (!latitude || !longitude)
            return TrackParser::tr("its position is none");
        point.place = QPointF(*longitude, *latitude);
    }
    point.time = midnights + *day;
    if (open && open->time - point.time > 0.5 * secondsOfDay) {
        midnights += secondsOfDay;
        point.time += secondsOfDay;
    }
    if (open && open->time == point.time) {
        if (hasFix) {
            open->place = point.place;
            open->hasFix = true;
        }
        return {};
    }
    if (open)
        points.push_back(*open);
    open = point;
    return {};
}

void NmeaParser::readCourse(const QByteArray &degreesText, const QByteArray &knotsText)
{
    bool hasCourse = false;
    bool hasSpeed = false;
    const double course = degreesText.toDouble(&hasCourse);
    const double knots = knotsText.toDouble(&hasSpeed);
    if (open && hasCourse && std::isfinite(course))
        open->heading = radiansOf(course);
    if (open && hasSpeed && knots >= 0.0 && std::isfinite(knots))
        open->speed = knots * metresPerSecondOfKnot;
}

void NmeaParser::finish(std::vector<TrackPoint> &points)
{
    if (open)
        points.push_back(*open);
    open.reset();
}
