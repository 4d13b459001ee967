#include "caption.h"

#include "textlines.h"
#include "theme.h"
#include "visibletext.h"

#include <QPainter>

Caption::Caption(int pixels, bool isBold, QWidget *parent)
    : QLabel(parent)
{
    setFont(Theme::font(pixels, isBold));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void Caption::setText(const QString &text)
{
    QLabel::setText(VisibleText::of(text));
}

QSize Caption::minimumSizeHint() const
{
    return QSize(0, fontMetrics().height());
}

void Caption::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Theme::colors().text);
    painter.drawText(rect(), int(alignment()), TextLines::elided(text(), fontMetrics(), width()));
}
