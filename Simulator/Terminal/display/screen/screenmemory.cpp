#include "screenmemory.h"

#include "screenfit.h"

namespace {

const QString sizeKey = QStringLiteral("window/size");

}

ScreenMemory::ScreenMemory()
    : settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("rxmap"),
               QStringLiteral("terminal-simulator"))
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
