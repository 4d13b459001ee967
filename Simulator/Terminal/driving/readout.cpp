#include "readout.h"

#include "textlines.h"
#include "theme.h"

#include <QPainter>

Readout::Readout(QWidget *parent)
    : QLabel(parent)
{
    setFont(Theme::font(20, true));
}

/// A label itself would break "km/h" behind its stroke.
void Readout::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Theme::colors().text);
    const int mostLines = qMax(1, height() / fontMetrics().lineSpacing());
    painter.drawText(rect(), Qt::AlignCenter,
                     TextLines::of(text(), fontMetrics(), width(), mostLines).join(QLatin1Char('\n')));
}
