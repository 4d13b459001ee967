#include "debugline.h"

#include <QMessageLogger>

QDebug debugLine()
{
    return QMessageLogger(nullptr, 0, nullptr).debug();
}
