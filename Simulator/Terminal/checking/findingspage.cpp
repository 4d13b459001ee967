#include "findingspage.h"

#include "findingrow.h"
#include "shownnumber.h"
#include "theme.h"
#include "touchbutton.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include <cstdlib>

FindingsPage::FindingsPage(QWidget *parent)
    : QWidget(parent)
    , heading(new QLabel(this))
    , area(new QScrollArea(this))
{
    setObjectName(QStringLiteral("findingsPage"));
    auto *close = new TouchButton(tr("Close"), this);
    close->setObjectName(QStringLiteral("findingsClose"));
    close->setFixedSize(2 * Theme::touchTarget, Theme::touchTarget);
    connect(close, &TouchButton::clicked, this, &QWidget::hide);
    heading->setObjectName(QStringLiteral("findingsHeading"));
    heading->setFont(Theme::font(26, true));
    area->setObjectName(QStringLiteral("findingsList"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->viewport()->setAutoFillBackground(false);
    // The rows take the keyboard themselves.
    area->setFocusPolicy(Qt::NoFocus);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now != nullptr && area->isAncestorOf(now))
            area->ensureWidgetVisible(now);
    });

    auto *head = new QHBoxLayout;
    head->addWidget(heading, 1);
    head->addWidget(close);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    all->setSpacing(Theme::margin);
    all->addLayout(head);
    all->addWidget(area, 1);
    hide();
}

void FindingsPage::setEntries(const QList<Entry> &entries)
{
    heading->setText(tr("Map check: %1").arg(ShownNumber::text(entries.size())));
    const int scrolled = area->verticalScrollBar()->value();
    auto *list = new QWidget;
    auto *rows = new QVBoxLayout(list);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(Theme::margin / 2);
    for (int i = 0; i < entries.size(); ++i) {
        auto *row = new FindingRow(entries.at(i).finding, entries.at(i).file, list);
        row->setObjectName(QStringLiteral("finding%1").arg(i));
        connect(row, &FindingRow::clicked, this, [this, i] { Q_EMIT chosen(i); });
        row->installEventFilter(this);
        rows->addWidget(row);
    }
    rows->addStretch();
    list->installEventFilter(this);
    area->setWidget(list);
    list->setAutoFillBackground(false);
    area->verticalScrollBar()->setValue(scrolled);
}

/// Scrolls the list with the finger on it. Qt's own scroller looks for what is on the screen under the finger, and the
/// display itself is not.
bool FindingsPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        drag = {static_cast<QMouseEvent *>(event)->globalPos().y(), area->verticalScrollBar()->value(), false};
    } else if (event->type() == QEvent::MouseMove) {
        constexpr int leastDrag = Theme::touchTarget / 4;
        const int moved = drag.from - static_cast<QMouseEvent *>(event)->globalPos().y();
        drag.isUnderWay = drag.isUnderWay || std::abs(moved) >= leastDrag;
        if (drag.isUnderWay)
            area->verticalScrollBar()->setValue(drag.scrolled + moved);
        // A row that is no longer down is not chosen when the finger leaves it.
        if (auto *row = qobject_cast<QAbstractButton *>(watched); row != nullptr && drag.isUnderWay)
            row->setDown(false);
        return drag.isUnderWay;
    }
    return QWidget::eventFilter(watched, event);
}

void FindingsPage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        hide();
    else
        QWidget::keyPressEvent(event);
}

void FindingsPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Theme::drawPanel(painter, rect(), QColor(Theme::colors().panel.rgb()));
}
