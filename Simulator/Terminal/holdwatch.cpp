#include "holdwatch.h"

#include <QApplication>

HoldWatch::HoldWatch(QObject *control)
    : formerDialog(QApplication::activeModalWidget())
{
    if (control != nullptr && control->metaObject()->indexOfSignal("longTouch(int)") >= 0)
        connect(control, SIGNAL(longTouch(int)), this, SLOT(end()));
}

bool HoldWatch::isOver() const
{
    return hasEnded || QApplication::activeModalWidget() != formerDialog;
}

void HoldWatch::end()
{
    hasEnded = true;
}
