#include "ratetable.h"

#include "machine.h"
#include "raterow.h"
#include "simulation.h"
#include "theme.h"

#include <QPainter>

namespace {

constexpr int headHeight = 30;
constexpr int below = 7;

} // namespace

RateTable::RateTable(Simulation *givenSimulation, QWidget *parent)
    : QWidget(parent)
    , simulation(givenSimulation)
{
    setObjectName(QStringLiteral("rateTable"));
    setAccessibleName(tr("Rates now"));
    for (int i = 0; i < rowsOfAPage; ++i) {
        auto *row = new RateRow(simulation, this);
        rows.append(row);
        connect(row, &RateRow::clicked, this, [this, i] {
            simulation->machine()->setActiveProduct(shownPage * rowsOfAPage + i + 1);
            // The product may have been active already, and then nothing reports a change.
            showActive();
        });
    }
    connect(simulation->machine(), &Machine::productsChanged, this, &RateTable::showActive);
    showActive();
}

int RateTable::usualHeight()
{
    return headHeight + rowsOfAPage * RateRow::rowHeight + below;
}

int RateTable::pages() const
{
    return (simulation->machine()->products().size() + rowsOfAPage - 1) / rowsOfAPage;
}

void RateTable::showNextPage()
{
    showPage((shownPage + 1) % pages());
}

void RateTable::showActive()
{
    showPage((simulation->machine()->activeProduct() - 1) / rowsOfAPage);
}

void RateTable::showPage(int number)
{
    shownPage = number;
    const int products = simulation->machine()->products().size();
    for (int i = 0; i < rows.size(); ++i) {
        const int product = shownPage * rowsOfAPage + i + 1;
        rows.at(i)->setVisible(product <= products);
        if (product <= products)
            rows.at(i)->setProduct(product);
    }
}

void RateTable::resizeEvent(QResizeEvent *)
{
    for (int i = 0; i < rows.size(); ++i)
        rows.at(i)->setGeometry(0, headHeight + i * RateRow::rowHeight, width(), RateRow::rowHeight);
}

void RateTable::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect row(0, 4, width(), headHeight - 4);
    const QFont font = Theme::font(15);
    painter.setPen(Theme::colors().faintText);
    RateRow::drawCell(painter, row, RateRow::Name, font, tr("Product"));
    RateRow::drawCell(painter, row, RateRow::Prescribed, font, tr("Prescribed"));
    RateRow::drawCell(painter, row, RateRow::Commanded, font, tr("Commanded"));
    RateRow::drawCell(painter, row, RateRow::Applied, font, tr("Applied"));
    RateRow::drawCell(painter, row, RateRow::Source, font, tr("Source"));
}
