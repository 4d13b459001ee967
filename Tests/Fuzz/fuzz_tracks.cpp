// A recorded track, NMEA 0183 or comma-separated values.
#include "fuzzinput.h"
#include "trackreader.h"

#include <QTemporaryFile>

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const auto plane = std::make_shared<FieldPlane>(QPointF(9.0, 50.0));
    QTemporaryFile file;
    require(file.open(), "the track can be written");
    file.write(FuzzInput(data, size).rest());
    file.close();

    TrackReader reader(file.fileName(), plane);
    TrackPoint point;
    double last = 0.0;
    qint64 points = 0;
    while (reader.next(point)) {
        require(std::isfinite(point.time) && (points == 0 || point.time >= last), "time goes on");
        require(!point.hasFix || (std::isfinite(point.place.x()) && std::isfinite(point.place.y())), "a place is one");
        require(!point.heading || std::isfinite(*point.heading), "a heading is one");
        require(!point.speed || (std::isfinite(*point.speed) && *point.speed >= 0.0), "a speed is one");
        last = point.time;
        ++points;
    }
    require(reader.error().isEmpty() && reader.summary().points == points, "every entry is counted");
    const auto summary = TrackReader::check(file.fileName(), plane);
    require(summary.isOk() || isOneLineAbout(summary.error, file.fileName()), "one line says why not:", summary.error);
    return 0;
}
