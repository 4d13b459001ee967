#include "unitpage.h"

#include "caption.h"
#include "theme.h"
#include "touchbutton.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int columns = 6;
constexpr int titlePixels = 26;
constexpr int partPixels = 18;
constexpr int buttonWidth = 260;

TouchButton *addButton(QHBoxLayout *layout, const QString &text, const char *name, QWidget *parent)
{
    auto *button = new TouchButton(text, parent);
    button->setObjectName(QLatin1String(name));
    button->setFixedSize(buttonWidth, Theme::touchTarget);
    button->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(button);
    return button;
}

} // namespace

UnitPage::UnitPage(QWidget *parent)
    : QWidget(parent)
    , title(new Caption(titlePixels, true, this))
    , amountTitle(new Caption(partPixels, false, this))
    , areaTitle(new Caption(partPixels, false, this))
    , amountGrid(new QGridLayout)
    , areaGrid(new QGridLayout)
    , amounts(new QButtonGroup(this))
    , areas(new QButtonGroup(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    auto *head = new QHBoxLayout;
    head->setSpacing(Theme::margin);
    TouchButton *back = addButton(head, tr("Back"), "openBack", this);
    back->setFixedWidth(buttonWidth / 2 + buttonWidth / 6);
    head->addWidget(title, 1);
    layout->addLayout(head);
    amountTitle->setText(tr("Amount"));
    areaTitle->setText(tr("per area"));
    layout->addWidget(amountTitle);
    layout->addLayout(amountGrid);
    layout->addWidget(areaTitle);
    layout->addLayout(areaGrid);
    layout->addStretch();
    auto *foot = new QHBoxLayout;
    fromFile = addButton(foot, tr("As in the file"), "unitOfFile", this);
    others = addButton(foot, tr("Other amounts"), "unitOthers", this);
    foot->addStretch();
    accept = addButton(foot, QString(), "unitAccept", this);
    accept->setCheckable(true);
    layout->addLayout(foot);
    connect(back, &TouchButton::clicked, this, &UnitPage::left);
    connect(fromFile, &TouchButton::clicked, this, [this] { Q_EMIT chosen({}); });
    connect(others, &TouchButton::clicked, this, &UnitPage::showOthers);
    connect(accept, &TouchButton::clicked, this, [this] { Q_EMIT chosen(unit()); });
    for (QButtonGroup *group : {amounts, areas})
        connect(group, QOverload<int>::of(&QButtonGroup::buttonClicked), this, &UnitPage::showUnit);
}

void UnitPage::ask(const QString &question, const QList<RateUnitParts> &givenKinds, const QString &current,
                   const QString &unitOfFile)
{
    title->setText(question);
    kinds = givenKinds;
    others->setVisible(kinds.size() > 1);
    fill(amounts, amountGrid, kinds.first().amounts, current.section(QLatin1Char('/'), 0, 0),
         QStringLiteral("unitAmount%1"));
    fill(areas, areaGrid, kinds.first().areas, current.section(QLatin1Char('/'), 1), QStringLiteral("unitArea%1"));
    fromFile->setNote(unitOfFile.isEmpty() ? tr("it does not tell") : unitOfFile);
    showUnit();
}

void UnitPage::showOthers()
{
    kinds.append(kinds.takeFirst());
    fill(amounts, amountGrid, kinds.first().amounts, {}, QStringLiteral("unitAmount%1"));
    showUnit();
}

void UnitPage::fill(QButtonGroup *group, QGridLayout *grid, const QStringList &texts, const QString &current,
                    const QString &name)
{
    qDeleteAll(group->buttons());
    for (int place = 0; place < texts.size(); ++place) {
        auto *button = new TouchButton(texts.at(place), this);
        button->setObjectName(name.arg(place));
        if (texts.at(place) == QLatin1String("k"))
            button->setNote(tr("thousand"));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        group->addButton(button, place);
        grid->addWidget(button, place / columns, place % columns);
        button->setChecked(texts.at(place) == current);
        button->show();
    }
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
}

QString UnitPage::unit() const
{
    if (amounts->checkedButton() == nullptr || areas->checkedButton() == nullptr)
        return {};
    return amounts->checkedButton()->text() + QLatin1Char('/') + areas->checkedButton()->text();
}

void UnitPage::showUnit()
{
    accept->setText(unit().isEmpty() ? tr("Take") : tr("Take %1").arg(unit()));
    accept->setEnabled(!unit().isEmpty());
    accept->setChecked(accept->isEnabled());
    accept->setNote(accept->isEnabled() ? QString() : tr("amount and area"));
}
