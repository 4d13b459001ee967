#include "ratetable.h"

#include "machine.h"
#include "simulation.h"
#include "theme.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

enum Column { Name, Prescribed, Commanded, Applied, Unit, Source, ColumnCount };

constexpr int inset = 14;
constexpr int columnGap = 8;
constexpr int headHeight = 30;
// Of the table's width.
constexpr double shares[ColumnCount] = {0.185, 0.155, 0.18, 0.15, 0.12, 0.21};

bool isFigure(int column)
{
    return column == Prescribed || column == Commanded || column == Applied;
}

constexpr int leastPixels = 13;

bool fits(const QString &text, const QFont &font, int width)
{
    return QFontMetrics(font).horizontalAdvance(text) <= width;
}

/// Writes as big as `font` says, or so much smaller that the text fits, down to a size that can still be read.
void drawFitting(QPainter &painter, const QRect &cell, int flags, QFont font, const QString &text)
{
    while (font.pixelSize() > leastPixels && !fits(text, font, cell.width()))
        font.setPixelSize(font.pixelSize() - 1);
    painter.setFont(font);
    painter.drawText(cell, flags | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, cell.width()));
}

} // namespace

RateTable::RateTable(const Simulation *givenSimulation, QWidget *parent)
    : QWidget(parent)
    , simulation(givenSimulation)
{
    setObjectName(QStringLiteral("rateTable"));
    setAccessibleName(tr("Rates now"));
    takeProducts();
    connect(simulation->machine(), &Machine::productsChanged, this, &RateTable::takeProducts);
}

void RateTable::takeProducts()
{
    const Machine &machine = *simulation->machine();
    units.clear();
    for (int number = 1; number <= machine.products().size(); ++number)
        units.push_back(ShownUnit::of(machine, number));
}

int RateTable::pages() const
{
    return (int(units.size()) + rowsOfAPage - 1) / rowsOfAPage;
}

void RateTable::showNextPage()
{
    shownPage = (shownPage + 1) % pages();
    update();
}

void RateTable::showFirstPage()
{
    shownPage = 0;
    update();
}

QString RateTable::sourceText(CommandSource source)
{
    switch (source) {
    case CommandSource::Prescription:
        return tr("Prescription");
    case CommandSource::Default:
        return tr("Default rate");
    case CommandSource::ZeroShutoff:
        return tr("Zero shut-off");
    case CommandSource::MinRate:
        return tr("Least rate");
    case CommandSource::NoPosition:
        return tr("No position");
    case CommandSource::Stopped:
        return tr("Stopped");
    case CommandSource::NotControlled:
        break;
    }
    return tr("Not controlled");
}

std::vector<int> RateTable::order() const
{
    const int active = simulation->machine()->activeProduct();
    std::vector<int> numbers{active};
    for (int number = 1; number <= int(units.size()); ++number) {
        if (number != active)
            numbers.push_back(number);
    }
    return numbers;
}

QRect RateTable::cell(const QRect &row, int column) const
{
    const int inner = width() - 2 * inset;
    double left = 0.0;
    for (int before = 0; before < column; ++before)
        left += shares[before];
    return QRect(inset + int(left * inner), row.top(), int(shares[column] * inner) - columnGap, row.height());
}

void RateTable::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawHead(painter);
    const std::vector<int> numbers = order();
    const int tall = (height() - headHeight - inset / 2) / rowsOfAPage;
    const int first = shownPage * rowsOfAPage;
    for (int i = 0; i < rowsOfAPage && first + i < int(numbers.size()); ++i)
        drawRow(painter, QRect(0, headHeight + i * tall, width(), tall), numbers[size_t(first + i)]);
}

void RateTable::drawHead(QPainter &painter) const
{
    const QRect row(0, 4, width(), headHeight - 4);
    const QFont font = Theme::font(15);
    painter.setPen(Theme::faintText());
    drawFitting(painter, cell(row, Name), Qt::AlignLeft, font, tr("Product"));
    drawFitting(painter, cell(row, Prescribed), Qt::AlignRight, font, tr("Prescribed"));
    drawFitting(painter, cell(row, Commanded), Qt::AlignRight, font, tr("Commanded"));
    drawFitting(painter, cell(row, Applied), Qt::AlignRight, font, tr("Applied"));
    drawFitting(painter, cell(row, Source), Qt::AlignLeft, font, tr("Source"));
}

void RateTable::drawRow(QPainter &painter, const QRect &row, int number) const
{
    const Simulation::Rates now = simulation->rates(number);
    const ShownUnit &unit = units[size_t(number - 1)];
    const bool isControlled = now.command.source != CommandSource::NotControlled;
    const QString none = QStringLiteral("\u2013");
    QString texts[ColumnCount];
    const Product &product = simulation->machine()->products().at(number - 1);
    const bool isShort = fits(product.name, Theme::font(leastPixels, true), cell(row, Name).width());
    texts[Name] = isShort ? product.name : product.shortName;
    texts[Prescribed] = std::isnan(now.command.prescribed) ? none : unit.rateText(now.command.prescribed);
    texts[Commanded] = now.command.isOn ? unit.rateText(now.command.commanded) : isControlled ? tr("Off") : none;
    texts[Applied] = isControlled ? unit.rateText(now.applied) : none;
    texts[Unit] = unit.text;
    texts[Source] = sourceText(now.command.source);

    const bool isActive = number == simulation->machine()->activeProduct();
    for (int column = 0; column < ColumnCount; ++column) {
        const bool isBig = column == Name || isFigure(column);
        painter.setPen(isActive && column == Name ? Theme::accentText() : isBig ? Theme::text() : Theme::faintText());
        drawFitting(painter, cell(row, column), isFigure(column) ? Qt::AlignRight : Qt::AlignLeft,
                    isFigure(column) ? Theme::font(22, true) : Theme::font(18, column == Name), texts[column]);
    }
}
