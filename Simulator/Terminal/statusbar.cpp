#include "statusbar.h"

#include "look.h"

#include <QPainter>

namespace {

constexpr double kilometresPerHour = 3.6;
constexpr double milesPerHour = 3.6 / 1.609344;
constexpr int speedWidth = 190;
constexpr int progressWidth = 360;

} // namespace

StatusBar::StatusBar(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("statusBar"));
    setMaps({});
    setSpeed(0.0, true);
}

void StatusBar::setMaps(const QStringList &names)
{
    maps = names.isEmpty() ? tr("No prescription loaded") : names.join(QStringLiteral("  \u00b7  "));
    update();
}

void StatusBar::setSpeed(double metresPerSecond, bool metric)
{
    isMoving = metresPerSecond > 0.0;
    const double factor = metric ? kilometresPerHour : milesPerHour;
    speed = isMoving ? (metric ? tr("%1 km/h") : tr("%1 mph")).arg(metresPerSecond * factor, 0, 'f', 1) : tr("Stopped");
    update();
}

void StatusBar::setProgress(const QString &file, double fraction)
{
    loading = file;
    loaded = qBound(0.0, fraction, 1.0);
    update();
}

void StatusBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(Look::panel().rgb()));
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect inner = rect().adjusted(20, 0, -20, 0);

    const QRect speedArea(inner.right() - speedWidth, 0, speedWidth, height());
    painter.setFont(Look::font(22, true));
    painter.setPen(isMoving ? Look::accent() : Look::text());
    painter.drawText(speedArea, Qt::AlignVCenter | Qt::AlignRight, speed);

    QRect mapArea(inner.left(), 0, inner.width() - speedWidth - Look::margin, height());
    if (!loading.isEmpty()) {
        mapArea.setWidth(mapArea.width() - progressWidth - Look::margin);
        const QRect area(mapArea.right() + Look::margin, 0, progressWidth, height());
        painter.setFont(Look::font(15));
        painter.setPen(Look::faintText());
        painter.drawText(area.adjusted(0, 6, 0, 0), Qt::AlignTop | Qt::AlignLeft, tr("Loading %1").arg(loading));
        const QRectF track(area.left(), height() - 22.0, area.width(), 12.0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::button());
        painter.drawRoundedRect(track, 6.0, 6.0);
        painter.setBrush(Look::accent());
        painter.drawRoundedRect(QRectF(track.topLeft(), QSizeF(qMax(12.0, track.width() * loaded), 12.0)), 6.0, 6.0);
    }
    painter.setFont(Look::font(22, true));
    painter.setPen(Look::text());
    painter.drawText(mapArea, Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(maps, Qt::ElideMiddle, mapArea.width()));
}
