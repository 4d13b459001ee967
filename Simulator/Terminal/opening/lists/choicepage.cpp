#include "choicepage.h"

#include "caption.h"
#include "listrow.h"
#include "pager.h"
#include "theme.h"
#include "touchbutton.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int columns = 3;
constexpr int rows = 6;
constexpr int titlePixels = 26;
constexpr int backWidth = 180;

} // namespace

ChoicePage::ChoicePage(QWidget *parent)
    : QWidget(parent)
    , title(new Caption(titlePixels, true, this))
    , pages(new Pager(Qt::Vertical, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    auto *head = new QHBoxLayout;
    head->setSpacing(Theme::margin);
    auto *back = new TouchButton(tr("Back"), this);
    back->setObjectName(QStringLiteral("openBack"));
    back->setFixedSize(backWidth, Theme::touchTarget);
    back->setFocusPolicy(Qt::TabFocus);
    head->addWidget(back);
    head->addWidget(title, 1);
    layout->addLayout(head);
    auto *body = new QHBoxLayout;
    auto *grid = new QGridLayout;
    for (int place = 0; place < rows * columns; ++place) {
        // A row, not a button: names of layers are long, and may differ only at their ends.
        auto *button = new ListRow(this);
        button->setObjectName(QStringLiteral("choice%1").arg(place));
        button->setCheckable(true);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        grid->addWidget(button, place / columns, place % columns);
        buttons.append(button);
        connect(button, &ListRow::clicked, this, [this, place] { Q_EMIT chosen(pages->first() + place); });
    }
    for (int row = 0; row < rows; ++row)
        grid->setRowStretch(row, 1);
    body->addLayout(grid, 1);
    body->addWidget(pages);
    layout->addLayout(body, 1);
    connect(back, &TouchButton::clicked, this, &ChoicePage::left);
    connect(pages, &Pager::turned, this, &ChoicePage::showPage);
}

void ChoicePage::ask(const QString &question, const QStringList &options, int current)
{
    title->setText(question);
    texts = options;
    currentPlace = current;
    pages->setItems(options.size(), rows * columns);
    showPage();
}

void ChoicePage::showPage()
{
    for (int place = 0; place < buttons.size(); ++place) {
        const int option = pages->first() + place;
        ListRow *button = buttons.at(place);
        button->setVisible(option < texts.size());
        button->setText(texts.value(option));
        button->setChecked(option == currentPlace);
    }
}
