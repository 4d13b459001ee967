#include "columnrow.h"

#include "Backend/rateunits.h"
#include "listrow.h"
#include "shownnumber.h"
#include "theme.h"
#include "touchbutton.h"

#include <QHBoxLayout>

namespace {

constexpr int productWidth = 140;
constexpr int unitWidth = 134;

/// Six digits are enough to tell rates apart.
QString rateText(double rate)
{
    return ShownNumber::inLanguage(QString::number(rate, 'g', 6));
}

} // namespace

ColumnRow::ColumnRow(int place, QWidget *parent)
    : QWidget(parent)
    , what(new ListRow(this))
    , product(new TouchButton(QString(), this))
    , unit(new TouchButton(QString(), this))
{
    const QString name = QStringLiteral("columnRow%1").arg(place);
    what->setObjectName(name);
    product->setObjectName(name + QStringLiteral("Product"));
    unit->setObjectName(name + QStringLiteral("Unit"));
    what->setCheckable(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::margin / 2);
    layout->addWidget(what, 1);
    for (TouchButton *button : {product, unit}) {
        button->setFocusPolicy(Qt::TabFocus);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        layout->addWidget(button);
    }
    what->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    product->setFixedWidth(productWidth);
    unit->setFixedWidth(unitWidth);
    connect(what, &ListRow::clicked, this, &ColumnRow::touched);
    connect(product, &TouchButton::clicked, this, &ColumnRow::productTouched);
    connect(unit, &TouchButton::clicked, this, &ColumnRow::unitTouched);
}

void ColumnRow::show(const OpenSelection &selection, int index)
{
    const QList<MachineProduct> &products = selection.fedProducts();
    const SurveyedColumn &column = selection.column(index);
    what->setText(column.name);
    what->setNotes(notes(column, selection.unit(index)));
    what->setBadge(column.isTotal ? tr("total") : column.isSure ? QString() : tr("guess"));
    const int number = selection.product(index);
    product->setText(number == 0 ? tr("None") : products.at(number - 1).name);
    product->setNote(number == 0 ? tr("feeds no product") : tr("Product %1").arg(number));
    const QString text = selection.unit(index);
    unit->setText(text.isEmpty() ? QStringLiteral("?") : text);
    unit->setAccessibleName(text.isEmpty() ? tr("Unit") : unit->text());
    unit->setNote(unitNote(selection, index));
    unit->setCaution(selection.withoutUnit().contains(index));
    unit->setEnabled(number > 0 && !RateUnits::parts(products.at(number - 1).kind).amounts.isEmpty());
}

QStringList ColumnRow::notes(const SurveyedColumn &column, const QString &unit)
{
    const QString range = column.leastRate == column.greatestRate
        ? rateText(column.leastRate)
        : rateText(column.leastRate) + QStringLiteral(" \u2013 ") + rateText(column.greatestRate);
    QStringList lines{unit.isEmpty() ? range : range + QLatin1Char(' ') + unit};
    if (column.shareWithoutRate > 0.0) {
        const double percent = 100.0 * column.shareWithoutRate;
        lines.append(percent < 1.0 ? tr("less than 1 % without a rate")
                                   : tr("%1 % without a rate").arg(ShownNumber::text(percent)));
    }
    return lines;
}

QString ColumnRow::unitNote(const OpenSelection &selection, int index)
{
    if (selection.unitState(index) == OpenSelection::UnitState::Assumed)
        return tr("not known");
    if (selection.unitState(index) == OpenSelection::UnitState::Unfit)
        return tr("does not fit");
    if (selection.isUnitChosen(index))
        return tr("chosen");
    switch (selection.column(index).unitFrom) {
    case RateSource::UnitFrom::Format:
        return tr("from the format");
    case RateSource::UnitFrom::Column:
        return tr("from a column");
    case RateSource::UnitFrom::Text:
        return tr("from its texts");
    default:
        return tr("from the name");
    }
}

void ColumnRow::setShown(bool isShownOnTheMap)
{
    what->setChecked(isShownOnTheMap);
}
