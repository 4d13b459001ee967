#include "findingspage.h"

#include "findingrow.h"
#include "shownnumber.h"
#include "theme.h"
#include "touchbutton.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QScroller>

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
    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);

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
        rows->addWidget(row);
    }
    rows->addStretch();
    area->setWidget(list);
    list->setAutoFillBackground(false);
    area->verticalScrollBar()->setValue(scrolled);
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
