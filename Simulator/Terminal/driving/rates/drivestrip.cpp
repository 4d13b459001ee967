#include "drivestrip.h"

#include "machine.h"
#include "rateplot.h"
#include "ratetable.h"
#include "simulation.h"
#include "theme.h"
#include "touchbutton.h"

#include <QPainter>

namespace {

constexpr int gap = 8;
// Of the strip's width, without and with the button that turns pages.
constexpr double plotShare = 0.35;
constexpr double smallPlotShare = 0.3;

} // namespace

DriveStrip::DriveStrip(Simulation *simulation, const RateHistory *history, QWidget *parent)
    : QWidget(parent)
    , table(new RateTable(simulation, this))
    , plot(new RatePlot(simulation->machine(), history, this))
    , pageButton(new TouchButton(QString(), this))
    , pace(this)
{
    setObjectName(QStringLiteral("driveStrip"));
    pageButton->setObjectName(QStringLiteral("ratesPage"));
    pageButton->setNote(tr("Page"));
    pageButton->setAccessibleName(tr("Next page of rates"));
    takeProducts();
    // Connected after the table, which was made earlier and so takes the products first.
    connect(simulation->machine(), &Machine::productsChanged, this, &DriveStrip::takeProducts);
    connect(pageButton, &TouchButton::clicked, this, [this] {
        table->showNextPage();
        showPage();
    });
    connect(simulation->machine(), &Machine::activeProductChanged, this, [this] {
        table->showActive();
        showPage();
    });
    connect(simulation->machine(), &Machine::mapsChanged, this, [this] { pace.request(); });
    connect(simulation, &Simulation::stepped, this, [this] { pace.request(); });
}

void DriveStrip::takeProducts()
{
    pageButton->setVisible(table->pages() > 1);
    arrange();
    showPage();
}

void DriveStrip::showPage()
{
    pageButton->setText(QStringLiteral("%1/%2").arg(table->page() + 1).arg(table->pages()));
    pace.request();
}

QSize DriveStrip::sizeHint() const
{
    return QSize(0, RateTable::usualHeight());
}

void DriveStrip::resizeEvent(QResizeEvent *)
{
    arrange();
}

void DriveStrip::arrange()
{
    const bool hasPages = table->pages() > 1;
    const int plotWidth = int((hasPages ? smallPlotShare : plotShare) * width());
    const int pageWidth = hasPages ? Theme::touchTarget + gap : 0;
    table->setGeometry(0, 0, width() - plotWidth - pageWidth, height());
    pageButton->setGeometry(table->width(), gap, Theme::touchTarget, height() - 2 * gap);
    plot->setGeometry(width() - plotWidth, 0, plotWidth, height());
}

void DriveStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Theme::drawPanel(painter, rect(), Theme::colors().panel);
}
