#include "motion.h"

QString Motion::modeName(Mode mode)
{
    switch (mode) {
    case Mode::Shuttle:
        return QStringLiteral("shuttle");
    case Mode::Swaths:
        return QStringLiteral("swaths");
    case Mode::Hand:
        return QStringLiteral("hand");
    case Mode::Replay:
        break;
    }
    return QStringLiteral("replay");
}
