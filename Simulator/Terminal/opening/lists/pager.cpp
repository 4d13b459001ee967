#include "pager.h"

#include "theme.h"
#include "touchbutton.h"

#include <QBoxLayout>
#include <QPainter>

#include <algorithm>

Pager::Pager(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , back(new TouchButton(QStringLiteral("\u25b2"), this))
    , forward(new TouchButton(QStringLiteral("\u25bc"), this))
{
    back->setObjectName(QStringLiteral("pageUp"));
    forward->setObjectName(QStringLiteral("pageDown"));
    back->setAccessibleName(tr("Page before"));
    forward->setAccessibleName(tr("Next page"));
    auto *layout =
        new QBoxLayout(orientation == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(back);
    layout->addStretch();
    layout->addWidget(forward);
    for (TouchButton *button : {back, forward}) {
        button->setFixedSize(Theme::touchTarget, Theme::touchTarget);
        button->setFocusPolicy(Qt::TabFocus);
    }
    connect(back, &TouchButton::clicked, this, [this] { turn(-1); });
    connect(forward, &TouchButton::clicked, this, [this] { turn(1); });
}

int Pager::pages() const
{
    return std::max(1, (items + itemsPerPage - 1) / itemsPerPage);
}

void Pager::setItems(int count, int perPage)
{
    items = count;
    itemsPerPage = std::max(1, perPage);
    show(0);
}

void Pager::showItem(int item)
{
    show(std::clamp(item / itemsPerPage, 0, pages() - 1));
}

void Pager::turn(int by)
{
    const int former = page;
    show(std::clamp(page + by, 0, pages() - 1));
    if (page != former)
        Q_EMIT turned();
}

void Pager::show(int newPage)
{
    page = newPage;
    setVisible(pages() > 1);
    back->setEnabled(page > 0);
    forward->setEnabled(page + 1 < pages());
    update();
}

void Pager::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(Theme::font(18, true));
    painter.setPen(Theme::colors().faintText);
    painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("%1 / %2").arg(page + 1).arg(pages()));
}
