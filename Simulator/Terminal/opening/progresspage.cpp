#include "progresspage.h"

#include "caption.h"
#include "theme.h"
#include "touchbutton.h"

#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int titlePixels = 26;
constexpr int barHeight = 24;
constexpr int buttonWidth = 260;
constexpr int sideSpace = 160;

} // namespace

ProgressPage::ProgressPage(QWidget *parent)
    : QWidget(parent)
    , title(new Caption(titlePixels, true, this))
{
    title->setObjectName(QStringLiteral("openProgress"));
    title->setAlignment(Qt::AlignCenter);
    auto *cancel = new TouchButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("openCancel"));
    cancel->setFixedSize(buttonWidth, Theme::touchTarget);
    cancel->setFocusPolicy(Qt::TabFocus);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(sideSpace, 0, sideSpace, 0);
    layout->addStretch();
    layout->addWidget(title);
    layout->addSpacing(4 * barHeight);
    layout->addWidget(cancel, 0, Qt::AlignHCenter);
    layout->addStretch();
    connect(cancel, &TouchButton::clicked, this, &ProgressPage::cancelled);
}

void ProgressPage::begin(const QString &text)
{
    title->setText(text);
    setFraction(0.0);
}

void ProgressPage::setFraction(double fraction)
{
    done = std::clamp(fraction, 0.0, 1.0);
    update();
}

void ProgressPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF track(sideSpace, title->geometry().bottom() + 1.5 * barHeight, width() - 2.0 * sideSpace, barHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::colors().button);
    painter.drawRoundedRect(track, barHeight / 2.0, barHeight / 2.0);
    painter.setBrush(Theme::colors().accent);
    const double filled = std::max<double>(barHeight, done * track.width());
    painter.drawRoundedRect(QRectF(track.topLeft(), QSizeF(filled, barHeight)), barHeight / 2.0, barHeight / 2.0);
}
