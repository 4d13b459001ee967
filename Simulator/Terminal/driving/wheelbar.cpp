#include "wheelbar.h"

#include "buttonlook.h"
#include "theme.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr double knobRadius = 26.0;
constexpr double inset = 6.0;

} // namespace

WheelBar::WheelBar(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("wheel"));
    setAccessibleName(tr("Steering wheel"));
}

double WheelBar::reach() const
{
    return qMax(1.0, width() / 2.0 - knobRadius - inset);
}

void WheelBar::setTurn(double turn)
{
    turned = qBound(-1.0, turn, 1.0);
    update();
    Q_EMIT turnedTo(turned);
}

void WheelBar::mousePressEvent(QMouseEvent *event)
{
    setTurn((event->localPos().x() - width() / 2.0) / reach());
}

void WheelBar::mouseMoveEvent(QMouseEvent *event)
{
    setTurn((event->localPos().x() - width() / 2.0) / reach());
}

void WheelBar::mouseReleaseEvent(QMouseEvent *)
{
    setTurn(0.0);
}

void WheelBar::hideEvent(QHideEvent *)
{
    // A finger that holds the wheel cannot let go of a hidden one.
    if (turned != 0.0)
        setTurn(0.0);
}

void WheelBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Theme::Colors &colors = Theme::colors();
    const bool isOutOfReach = ButtonLook::isOutOfReach(*this);
    const QColor ground = isOutOfReach ? colors.disabledButton : colors.button;
    Theme::drawPanel(painter, rect(), ground);
    const QPointF middle(width() / 2.0, height() / 2.0);
    painter.setPen(QPen(colors.faintText, 3.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle - QPointF(reach(), 0.0), middle + QPointF(reach(), 0.0));
    painter.drawLine(middle - QPointF(0.0, 14.0), middle + QPointF(0.0, 14.0));
    const QPointF knob = middle + QPointF(turned * reach(), 0.0);
    painter.setPen(QPen(colors.textOnAccent, 2.0));
    painter.setBrush(isOutOfReach ? colors.disabledText : colors.accent);
    painter.drawEllipse(knob, knobRadius, knobRadius);
    painter.setBrush(ground);
    painter.drawEllipse(knob, knobRadius * 0.6, knobRadius * 0.6);
}
