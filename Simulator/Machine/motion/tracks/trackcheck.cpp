#include "trackcheck.h"

TrackCheck::TrackCheck(const QString &path, const std::optional<QPointF> &origin)
    : reading(std::async(std::launch::async, [this, path, origin] { return read(path, origin); }))
{
}

TrackCheck::~TrackCheck()
{
    giveUp();
    if (reading.valid())
        reading.wait();
}

bool TrackCheck::endsWithin(std::chrono::milliseconds time) const
{
    return reading.wait_for(time) == std::future_status::ready;
}

Result<TrackReader::Summary> TrackCheck::read(const QString &path, const std::optional<QPointF> &origin)
{
    constexpr double step = 0.01;
    // Of this thread alone: GDAL's transformations are not shared.
    const auto plane = origin ? std::make_shared<FieldPlane>(*origin) : nullptr;
    double told = 0.0;
    auto outcome = TrackReader::check(path, plane, [this, &told](double fraction) {
        if (fraction - told >= step) {
            told = fraction;
            Q_EMIT progress(fraction);
        }
        return !wantsEnd;
    });
    Q_EMIT ended();
    return outcome;
}
