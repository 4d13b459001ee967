#include "raterow.h"

#include "buttonlook.h"
#include "machine.h"
#include "simulation.h"
#include "textlines.h"
#include "theme.h"
#include "visibletext.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr int inset = 14;
constexpr int columnGap = 8;
constexpr int leastPixels = 13;
/// Of a row's width.
constexpr double shares[RateRow::ColumnCount] = {0.185, 0.155, 0.18, 0.15, 0.12, 0.21};

bool isFigure(RateRow::Column column)
{
    return column == RateRow::Prescribed || column == RateRow::Commanded || column == RateRow::Applied;
}

bool fits(const QString &text, const QFont &font, int width)
{
    // Qt elides what is too long by a fraction of a pixel.
    return QFontMetricsF(font).horizontalAdvance(text) <= width;
}

/// Where a column's text goes in a row.
QRect cell(const QRect &row, RateRow::Column column)
{
    const int inner = row.width() - 2 * inset;
    double left = 0.0;
    for (int before = 0; before < column; ++before)
        left += shares[before];
    return QRect(row.left() + inset + int(left * inner), row.top(), int(shares[column] * inner) - columnGap,
                 row.height());
}

} // namespace

RateRow::RateRow(const Simulation *givenSimulation, QWidget *parent)
    : TouchButton(QString(), parent)
    , simulation(givenSimulation)
{
    setCheckable(true);
}

void RateRow::setProduct(int newNumber)
{
    number = newNumber;
    unit = ShownUnit::of(*simulation->machine(), number);
    setObjectName(QStringLiteral("rateRow%1").arg(number));
    setText(simulation->machine()->products().at(number - 1).name);
    setChecked(number == simulation->machine()->activeProduct());
    update();
}

QString RateRow::sourceText(CommandSource source)
{
    switch (source) {
    case CommandSource::Prescription:
        return tr("Prescription");
    case CommandSource::Default:
        return tr("Default rate");
    case CommandSource::ZeroShutoff:
        return tr("Zero shut-off");
    case CommandSource::MinRate:
        return tr("Least rate");
    case CommandSource::NoPosition:
        return tr("No position");
    case CommandSource::Stopped:
        return tr("Stopped");
    case CommandSource::NotControlled:
        break;
    }
    return tr("Not controlled");
}

void RateRow::drawCell(QPainter &painter, const QRect &row, Column column, const QFont &font, const QString &text)
{
    const QRect area = cell(row, column);
    QFont fitting = font;
    while (fitting.pixelSize() > leastPixels && !fits(text, fitting, area.width()))
        fitting.setPixelSize(fitting.pixelSize() - 1);
    painter.setFont(fitting);
    painter.drawText(area, Qt::AlignVCenter | int(isFigure(column) ? Qt::AlignRight : Qt::AlignLeft),
                     TextLines::elided(text, painter.fontMetrics(), area.width(), Qt::ElideRight));
}

QStringList RateRow::texts() const
{
    const Simulation::Rates now = simulation->rates(number);
    const Product &product = simulation->machine()->products().at(number - 1);
    const bool isControlled = now.command.source != CommandSource::NotControlled;
    const QString name = VisibleText::of(product.name);
    const bool isLong = !fits(name, Theme::font(leastPixels, true), cell(rect(), Name).width());
    const QString none = QStringLiteral("\u2013");
    return {isLong ? VisibleText::of(product.shortName) : name,
            std::isnan(now.command.prescribed) ? none : unit.rateText(now.command.prescribed),
            now.command.isOn   ? unit.rateText(now.command.commanded)
                : isControlled ? tr("Off")
                               : none,
            isControlled ? unit.rateText(now.applied) : none,
            unit.text,
            sourceText(now.command.source)};
}

void RateRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const ButtonLook look = ButtonLook::of(*this, ButtonLook::Checked::ByAccent);
    // The gap between rows is part of the row, so that it can be touched as well.
    Theme::drawPanel(painter, QRectF(rect()).adjusted(inset / 2.0, 1.5, -inset / 2.0, -1.5), look.ground);
    if (hasFocus())
        Theme::drawFocus(painter, rect(), look.isOnAccent);
    const QStringList all = texts();
    for (int i = 0; i < ColumnCount; ++i) {
        const auto column = Column(i);
        painter.setPen(column == Name || isFigure(column) ? look.text : look.note);
        drawCell(painter, rect(), column, isFigure(column) ? Theme::font(22, true) : Theme::font(18, column == Name),
                 all.at(i));
    }
}
