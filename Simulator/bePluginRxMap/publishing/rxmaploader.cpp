#include "bePluginRxMap/rxmaploader.h"

RxMapLoader::RxMapLoader(double initialDefaultRate, QObject *parent)
    : QObject(parent)
    , defaultRate(initialDefaultRate)
{
}

RxMapLoader::~RxMapLoader() = default;

void RxMapLoader::defaultRateChanged(double rate)
{
    Q_EMIT defaultRateTaken(rate);
}
