#include "previewpage.h"

#include "Backend/prescriptionbackend.h"
#include "caption.h"
#include "columntable.h"
#include "legendpanel.h"
#include "machine.h"
#include "mappreview.h"
#include "openmap.h"
#include "showndistance.h"
#include "shownnumber.h"
#include "theme.h"
#include "touchbutton.h"
#include "visibletext.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int titlePixels = 24;
constexpr int remarkPixels = 16;
constexpr int buttonWidth = 200;
constexpr int choiceWidth = 300;

/// The classes that a legend shows: all but the one that stands for "no rate".
QList<OrvikTypes::RX_RATECOLOR> drawnClasses(const SurveyedClasses &all)
{
    QList<OrvikTypes::RX_RATECOLOR> classes;
    for (const OrvikTypes::RX_RATECOLOR &entry : all.legend) {
        if (entry.color.alpha() > 0)
            classes.append(entry);
    }
    return classes;
}

} // namespace

PreviewPage::PreviewPage(const Machine *terminalMachine, QWidget *parent)
    : QWidget(parent)
    , machine(terminalMachine)
    , title(new Caption(titlePixels, true, this))
    , map(new MapPreview(this))
    , legend(new LegendPanel(this))
    , remark(new QLabel(this))
    , table(new ColumnTable(this))
{
    // Named apart from the display's own legend.
    legend->setObjectName(QStringLiteral("openLegend"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    layout->setSpacing(Theme::margin);
    layout->addWidget(makeHead());
    auto *body = new QHBoxLayout;
    body->setSpacing(Theme::margin);
    body->addWidget(makeMap());
    body->addWidget(legend, 0, Qt::AlignTop);
    body->addWidget(table, 1);
    layout->addLayout(body, 1);
    layout->addWidget(makeFoot());
    connect(table, &ColumnTable::columnShown, this, &PreviewPage::showColumn);
    connect(table, &ColumnTable::productTouched, this, &PreviewPage::productTouched);
    connect(table, &ColumnTable::unitTouched, this, &PreviewPage::unitTouched);
}

TouchButton *PreviewPage::addButton(QHBoxLayout *layout, const QString &text, const char *name,
                                    void (PreviewPage::*signal)())
{
    auto *button = new TouchButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setFixedSize(buttonWidth, Theme::touchTarget);
    button->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(button);
    connect(button, &TouchButton::clicked, this, signal);
    return button;
}

QWidget *PreviewPage::makeHead()
{
    auto *head = new QWidget(this);
    auto *layout = new QHBoxLayout(head);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::margin);
    addButton(layout, tr("Back"), "openBack", &PreviewPage::left);
    layout->addWidget(title, 1);
    layer = addButton(layout, QString(), "openLayer", &PreviewPage::layerTouched);
    task = addButton(layout, QString(), "openTask", &PreviewPage::taskTouched);
    for (TouchButton *button : {layer, task})
        button->setFixedWidth(choiceWidth);
    layer->setNote(tr("Layer"));
    task->setNote(tr("Task"));
    return head;
}

QWidget *PreviewPage::makeMap()
{
    auto *side = new QWidget(this);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(map);
    remark->setFont(Theme::font(remarkPixels));
    remark->setTextFormat(Qt::PlainText);
    remark->setWordWrap(true);
    remark->setObjectName(QStringLiteral("openRemark"));
    layout->addWidget(remark);
    layout->addStretch();
    side->setFixedWidth(map->width());
    return side;
}

QWidget *PreviewPage::makeFoot()
{
    auto *foot = new QWidget(this);
    auto *layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::margin);
    layout->addStretch();
    addButton(layout, tr("Cancel"), "openCancel", &PreviewPage::cancelled);
    skip = addButton(layout, tr("Skip"), "openSkip", &PreviewPage::skipped);
    accept = addButton(layout, tr("Open"), "openAccept", &PreviewPage::accepted);
    accept->setCheckable(true);
    // A touch would uncheck the button, and so take its colour away.
    connect(accept, &TouchButton::clicked, accept, [this] { accept->setChecked(true); });
    return foot;
}

void PreviewPage::show(const OpenSelection &newSelection, int waiting)
{
    selection = &newSelection;
    const SurveyReport &survey = selection->survey();
    title->setText(PrescriptionBackend::nameOf(survey.path));
    layer->setVisible(survey.layers.size() > 1);
    layer->setText(survey.layer);
    task->setVisible(survey.tasks.size() > 1);
    task->setText(survey.task);
    skip->setVisible(waiting > 0);
    skip->setNote(tr("%1 more").arg(waiting));
    table->show(newSelection);
    refresh();
}

void PreviewPage::changeEvent(QEvent *event)
{
    // The picture is in the theme's colours.
    if (event->type() == QEvent::PaletteChange && selection != nullptr)
        showColumn(table->shownColumn());
    QWidget::changeEvent(event);
}

void PreviewPage::refresh()
{
    const SurveyReport &survey = selection->survey();
    table->refresh();
    showColumn(table->shownColumn());
    accept->setEnabled(selection->feedsAny());
    accept->setChecked(accept->isEnabled());
    QStringList remarks{tr("Polygons: %1").arg(ShownNumber::text(survey.polygons))};
    if (selection->feedsAny())
        remarks.append(replacements());
    else
        remarks.append(tr("Choose a product for a column to open the file."));
    for (int index = 0; index < selection->size(); ++index) {
        if (selection->product(index) > 0 && selection->column(index).isTotal)
            remarks.append(tr("%1 is called a total, not a rate").arg(selection->column(index).name));
    }
    remark->setText(VisibleText::of(remarks.join(QLatin1Char('\n')), QStringLiteral("\n")));
}

QStringList PreviewPage::replacements() const
{
    QStringList remarks;
    const QList<OpenMap> maps = OpenMap::beside(*selection, *machine);
    for (const OpenMap &other : maps) {
        if (other.isReplaced)
            remarks.append(tr("Replaces %1").arg(other.file));
        else if (!other.taken.isEmpty())
            remarks.append(tr("Takes %1 over from %2").arg(other.taken.join(QStringLiteral(", ")), other.file));
        if (other.staysFarAway())
            remarks.append(
                tr("Lies %1 from %2").arg(ShownDistance::text(other.distance, machine->unitSystem()), other.file));
    }
    return remarks;
}

void PreviewPage::showColumn(int index)
{
    const SurveyedColumn &column = selection->column(index);
    const int number = selection->product(index);
    const double displayFactor = number > 0 ? selection->fedProducts().at(number - 1).displayFactor : 1.0;
    const SurveyedClasses classes = selection->survey().classesOf(index, selection->factor(index), displayFactor);
    map->show(selection->survey(), classes);
    LegendPanel::Content content;
    content.product = tr("No product");
    content.source = {column.name, selection->unit(index), column.unitFrom, number, column.isSure};
    if (selection->isUnitChosen(index))
        content.source.unitFrom = RateSource::UnitFrom::Operator;
    content.classes = drawnClasses(classes);
    content.hasSingleRates = classes.hasSingleRates;
    content.factor = displayFactor;
    content.unit = column.unit;
    if (number > 0) {
        const MachineProduct &product = selection->fedProducts().at(number - 1);
        content.product = product.name;
        content.unit = rateUnit(product.kind, machine->unitSystem());
    }
    legend->show(content);
    legend->setFixedSize(legend->sizeHint());
}

Pager *PreviewPage::pager() const
{
    return table->pager();
}
