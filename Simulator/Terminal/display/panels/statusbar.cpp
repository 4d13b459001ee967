#include "statusbar.h"

#include "shownnumber.h"
#include "textlines.h"
#include "theme.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double kilometresPerHour = 3.6;
constexpr double milesPerHour = 3.6 / 1.609344;
constexpr int sideMargin = 20;
constexpr int speedWidth = 190;
constexpr int progressWidth = 360;

} // namespace

StatusBar::StatusBar(QWidget *parent)
    : QWidget(parent)
    , buttons(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("statusBar"));
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(Theme::margin / 2);
    buttons->addStretch();
    setMaps({});
    setSpeed(0.0, true);
}

void StatusBar::addButton(QAbstractButton *button)
{
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    buttons->insertWidget(leftButtons++, button);
    connect(button, &QAbstractButton::clicked, this, [this, button] { Q_EMIT touched(button); });
}

void StatusBar::addTool(QAbstractButton *button)
{
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    buttons->addWidget(button);
}

QRect StatusBar::textArea() const
{
    int left = sideMargin;
    int right = width() - sideMargin - 1;
    for (int i = 0; i < buttons->count(); ++i) {
        const QWidget *button = buttons->itemAt(i)->widget();
        if (button == nullptr || button->isHidden())
            continue;
        if (i < leftButtons)
            left = std::max(left, button->geometry().right() + 1 + Theme::margin);
        else
            right = std::min(right, button->geometry().left() - 1 - Theme::margin);
    }
    return QRect(QPoint(left, 0), QPoint(right, height() - 1));
}

bool StatusBar::event(QEvent *event)
{
    // The texts move when a button comes or goes.
    if (event->type() == QEvent::LayoutRequest)
        update();
    return QWidget::event(event);
}

void StatusBar::setMaps(const QStringList &names)
{
    maps = names.isEmpty() ? tr("No prescription loaded") : names.join(QStringLiteral("  \u00b7  "));
    update();
}

void StatusBar::setSpeed(double metresPerSecond, bool metric)
{
    isMoving = metresPerSecond != 0.0;
    const double factor = metric ? kilometresPerHour : milesPerHour;
    const QString shown = ShownNumber::text(metresPerSecond * factor, 1);
    speed = isMoving ? (metric ? tr("%1 km/h") : tr("%1 mph")).arg(shown) : tr("Stopped");
    update();
}

void StatusBar::setPaused(bool isPausedNow)
{
    isPaused = isPausedNow;
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
    const Theme::Colors &colors = Theme::colors();
    painter.fillRect(rect(), QColor(colors.panel.rgb()));
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect inner = textArea();

    const QRect speedArea(inner.right() - speedWidth, 0, speedWidth, height());
    painter.setFont(Theme::font(22, true));
    painter.setPen(isMoving && !isPaused ? colors.accentText : colors.text);
    painter.drawText(speedArea, Qt::AlignVCenter | Qt::AlignRight, isPaused ? tr("Paused") : speed);

    QRect mapArea(inner.left(), 0, inner.width() - speedWidth - Theme::margin, height());
    if (!loading.isEmpty()) {
        mapArea.setWidth(mapArea.width() - progressWidth - Theme::margin);
        const QRect area(mapArea.right() + Theme::margin, 0, progressWidth, height());
        painter.setFont(Theme::font(15));
        painter.setPen(colors.faintText);
        painter.drawText(area.adjusted(0, 6, 0, 0), Qt::AlignTop | Qt::AlignLeft,
                         TextLines::elided(tr("Loading %1").arg(loading), painter.fontMetrics(), area.width()));
        const QRectF track(area.left(), height() - 22.0, area.width(), 12.0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colors.button);
        painter.drawRoundedRect(track, 6.0, 6.0);
        painter.setBrush(colors.accent);
        painter.drawRoundedRect(QRectF(track.topLeft(), QSizeF(qMax(12.0, track.width() * loaded), 12.0)), 6.0, 6.0);
    }
    painter.setFont(Theme::font(22, true));
    painter.setPen(colors.text);
    painter.drawText(mapArea, Qt::AlignVCenter, TextLines::elided(maps, painter.fontMetrics(), mapArea.width()));
}
