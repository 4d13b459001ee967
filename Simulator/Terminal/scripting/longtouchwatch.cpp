#include "longtouchwatch.h"

#include <QApplication>

LongTouchWatch::LongTouchWatch(QObject *control)
    : formerDialog(QApplication::activeModalWidget())
{
    if (control != nullptr && control->metaObject()->indexOfSignal("longTouch(int)") >= 0)
        connect(control, SIGNAL(longTouch(int)), this, SLOT(end()));
}

bool LongTouchWatch::isOver() const
{
    return hasEnded || QApplication::activeModalWidget() != formerDialog;
}

void LongTouchWatch::end()
{
    hasEnded = true;
}
