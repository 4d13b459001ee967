#include "chart.h"

#include "reportunits.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace {

// Pixels of the picture; the plot lies within the margins.
constexpr double width = 640.0;
constexpr double height = 260.0;
const QRectF plot(76.0, 24.0, width - 76.0 - 16.0, height - 24.0 - 48.0);

QString pixels(double value)
{
    return QString::number(value, 'f', 1);
}

/// One, two or five times a power of ten that divides the range into about `parts` parts.
double roundStep(double range, int parts)
{
    const double rough = range / parts;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double times : {1.0, 2.0, 5.0}) {
        if (times * power >= rough)
            return times * power;
    }
    return 10.0 * power;
}

/// As many as tell multiples of the step apart.
int decimalsOf(double step)
{
    return std::max(0, int(std::ceil(-std::log10(step) - 1e-9)));
}

} // namespace

Chart::Chart(QXmlStreamWriter *givenPage, const QRectF &givenRange)
    : page(givenPage)
    , range(givenRange)
{
    page->writeStartElement(QStringLiteral("svg"));
    page->writeAttribute(QStringLiteral("viewBox"), QStringLiteral("0 0 %1 %2").arg(width).arg(height));
    page->writeAttribute(QStringLiteral("role"), QStringLiteral("img"));
}

Chart::~Chart()
{
    page->writeEndElement();
}

QPointF Chart::onPage(const QPointF &point) const
{
    return {plot.left() + (point.x() - range.left()) / range.width() * plot.width(),
            plot.bottom() - (point.y() - range.top()) / range.height() * plot.height()};
}

void Chart::stroke(const QPointF &from, const QPointF &to, const char *look)
{
    page->writeStartElement(QStringLiteral("line"));
    page->writeAttribute(QStringLiteral("class"), QLatin1String(look));
    page->writeAttribute(QStringLiteral("x1"), pixels(from.x()));
    page->writeAttribute(QStringLiteral("y1"), pixels(from.y()));
    page->writeAttribute(QStringLiteral("x2"), pixels(to.x()));
    page->writeAttribute(QStringLiteral("y2"), pixels(to.y()));
    page->writeEndElement();
}

void Chart::text(const QPointF &place, const char *anchor, const QString &content)
{
    page->writeStartElement(QStringLiteral("text"));
    page->writeAttribute(QStringLiteral("x"), pixels(place.x()));
    page->writeAttribute(QStringLiteral("y"), pixels(place.y()));
    page->writeAttribute(QStringLiteral("text-anchor"), QLatin1String(anchor));
    page->writeCharacters(content);
    page->writeEndElement();
}

void Chart::axes(const QString &xName, const QString &yName)
{
    const double xStep = roundStep(range.width(), 8);
    for (double i = std::ceil(range.left() / xStep); i * xStep <= range.right(); i += 1.0) {
        const QPointF foot(onPage({i * xStep, range.top()}));
        stroke(foot, {foot.x(), plot.top()}, i == 0.0 ? "zero" : "grid");
        text(foot + QPointF(0.0, 16.0), "middle", ReportUnits::number(i * xStep, decimalsOf(xStep)));
    }
    const double yStep = roundStep(range.height(), 5);
    for (double i = std::ceil(range.top() / yStep); i * yStep <= range.bottom(); i += 1.0) {
        const QPointF side(onPage({range.left(), i * yStep}));
        stroke(side, {plot.right(), side.y()}, i == 0.0 ? "zero" : "grid");
        text(side + QPointF(-6.0, 4.0), "end", ReportUnits::number(i * yStep, decimalsOf(yStep)));
    }
    text({plot.center().x(), height - 8.0}, "middle", xName);
    text({4.0, 14.0}, "start", yName);
}

void Chart::bar(double from, double to, double barHeight)
{
    const QPointF corner = onPage({from, barHeight});
    const QPointF foot = onPage({to, 0.0});
    page->writeStartElement(QStringLiteral("rect"));
    page->writeAttribute(QStringLiteral("class"), QStringLiteral("bar"));
    page->writeAttribute(QStringLiteral("x"), pixels(corner.x()));
    page->writeAttribute(QStringLiteral("y"), pixels(corner.y()));
    page->writeAttribute(QStringLiteral("width"), pixels(foot.x() - corner.x()));
    page->writeAttribute(QStringLiteral("height"), pixels(foot.y() - corner.y()));
    page->writeEndElement();
}

void Chart::line(const std::vector<QPointF> &points)
{
    QStringList places;
    for (const QPointF &point : points) {
        const QPointF place = onPage(point);
        places.append(pixels(place.x()) + QLatin1Char(',') + pixels(place.y()));
    }
    page->writeStartElement(QStringLiteral("polyline"));
    page->writeAttribute(QStringLiteral("points"), places.join(QLatin1Char(' ')));
    page->writeEndElement();
}

void Chart::mark(const QPointF &point, const QString &content)
{
    const QPointF place = onPage(point);
    page->writeStartElement(QStringLiteral("circle"));
    page->writeAttribute(QStringLiteral("cx"), pixels(place.x()));
    page->writeAttribute(QStringLiteral("cy"), pixels(place.y()));
    page->writeAttribute(QStringLiteral("r"), QStringLiteral("4"));
    page->writeEndElement();
    if (!content.isEmpty())
        text(place + QPointF(6.0, -8.0), "start", content);
}
