#include "screenmemory.h"

#include "screenfit.h"

#include <QSettings>

namespace {

const QString sizeKey = QStringLiteral("window/size");

}

ScreenMemory::ScreenMemory(QSettings &appSettings)
    : settings(appSettings)
{
}

QSize ScreenMemory::sizeOn(const QSize &available) const
{
    const QSize last = settings.value(sizeKey).toSize();
    return last.isEmpty() ? ScreenFit::firstSize(available) : last.boundedTo(available);
}

void ScreenMemory::keep(const QSize &size)
{
    settings.setValue(sizeKey, size);
}
