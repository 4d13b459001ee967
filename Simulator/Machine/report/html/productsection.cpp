#include "productsection.h"

#include "Backend/prescriptionbackend.h"
#include "chart.h"
#include "drivenfield.h"
#include "fieldraster.h"
#include "machine.h"
#include "ratecontroller.h"
#include "shownnumber.h"
#include "simulation.h"
#include "visibletext.h"

#include <QBuffer>
#include <QImage>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace {

const QString dash = QStringLiteral(" \u2013 ");

void writeCells(QXmlStreamWriter &page, const char *kind, const QStringList &cells)
{
    page.writeStartElement(QStringLiteral("tr"));
    for (const QString &cell : cells)
        page.writeTextElement(QLatin1String(kind), cell);
    page.writeEndElement();
}

/// A table that is wider than a narrow screen scrolls by itself.
void startTable(QXmlStreamWriter &page)
{
    page.writeStartElement(QStringLiteral("div"));
    page.writeAttribute(QStringLiteral("class"), QStringLiteral("wide"));
    page.writeStartElement(QStringLiteral("table"));
}

void endTable(QXmlStreamWriter &page)
{
    page.writeEndElement();
    page.writeEndElement();
}

QString inBrackets(const QString &name, const QString &unit)
{
    return unit.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, unit);
}

QString seconds(double value)
{
    return ReportUnits::number(value, 2);
}

QString inPercent(double part, double whole)
{
    return whole > 0.0 ? ShownNumber::text(100.0 * part / whole, 1) + QStringLiteral(" %") : QStringLiteral("\u2013");
}

} // namespace

ProductSection::ProductSection(const DrivenField &givenField, int givenNumber)
    : field(givenField)
    , number(givenNumber)
    , product(givenField.simulation->machine()->products().at(givenNumber - 1))
    , tally(givenField.tally->products().at(size_t(givenNumber - 1)))
    , units(*givenField.simulation->machine(), givenNumber)
{
    const Machine &machine = *field.simulation->machine();
    if (product.underVra)
        map = ActiveMap::find(*machine.dataBroker(), Machine::productGroupName(number));
    const QList<LoadReport> maps = machine.backend()->maps();
    for (const LoadReport &report : maps) {
        if (report.group == map.groupName)
            hasSingleRates = report.hasSingleRates.value(map.mapping);
    }
}

void ProductSection::write(QXmlStreamWriter &page) const
{
    page.writeTextElement(QStringLiteral("h2"), inBrackets(VisibleText::of(product.name), units.rateUnit()));
    if (!map.isValid()) {
        page.writeTextElement(QStringLiteral("p"), tr("No prescription drives this product."));
        return;
    }
    page.writeTextElement(QStringLiteral("p"),
                          tr("Column %1; look-ahead %2 s; dead time %3 s, time constant %4 s")
                              .arg(VisibleText::of(map.columnName),
                                   seconds(field.simulation->controller()->lookAheadMs(number) / 1000.0),
                                   seconds(product.actuator.deadTime), seconds(product.actuator.timeConstant)));
    writePictures(page);
    writeClasses(page);
    writeErrors(page);
    writeChanges(page);
    writeCurve(page);
}

void ProductSection::writePictures(QXmlStreamWriter &page) const
{
    page.writeStartElement(QStringLiteral("div"));
    page.writeAttribute(QStringLiteral("class"), QStringLiteral("maps"));
    writePicture(page, tr("Prescribed"), [this](int column, int row) {
        return map.classColor(double(field.raster->prescribed(number, column, row)));
    });
    writePicture(page, tr("Applied"), [this](int column, int row) {
        const double applied = double(field.raster->applied(number, column, row));
        const bool isPrescribed = !std::isnan(field.raster->prescribed(number, column, row));
        return isPrescribed || std::isnan(applied) ? map.appliedColor(applied, hasSingleRates)
                                                   : ActiveMap::unplannedColor();
    });
    page.writeEndElement();
    const double width = units.length(field.raster->size().width() * field.raster->cellSize());
    page.writeTextElement(QStringLiteral("p"),
                          tr("Each picture is %1 wide; north is up.")
                              .arg(ReportUnits::number(width) + QLatin1Char(' ') + units.lengthUnit()));
}

void ProductSection::writePicture(QXmlStreamWriter &page, const QString &caption,
                                  const std::function<QColor(int, int)> &colorOf) const
{
    QImage image(field.raster->size(), QImage::Format_ARGB32);
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            const QColor color = colorOf(column, row);
            image.setPixel(column, row, color.isValid() ? color.rgb() : qRgba(0, 0, 0, 0));
        }
    }
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    page.writeStartElement(QStringLiteral("figure"));
    page.writeTextElement(QStringLiteral("figcaption"), caption);
    page.writeEmptyElement(QStringLiteral("img"));
    page.writeAttribute(QStringLiteral("alt"), caption);
    page.writeAttribute(QStringLiteral("src"),
                        QStringLiteral("data:image/png;base64,") + QString::fromLatin1(png.toBase64()));
    page.writeEndElement();
}

QString ProductSection::className(int place) const
{
    const auto limit = [this](int at) { return ReportUnits::number(units.rate(map.legend.at(at).rate)); };
    if (hasSingleRates)
        return limit(place);
    return place == 0 ? QStringLiteral("\u2264 ") + limit(0) : limit(place - 1) + dash + limit(place);
}

void ProductSection::writeClasses(QXmlStreamWriter &page) const
{
    std::vector<DriveTally::RateClass> classes(size_t(map.legend.size()));
    DriveTally::RateClass total = tally.unprescribed;
    for (const auto &[rate, ground] : tally.classes) {
        total += ground;
        const int place = map.classOf(rate);
        if (place >= 0)
            classes[size_t(place)] += ground;
    }
    page.writeTextElement(QStringLiteral("h3"), tr("Area and amount by class"));
    startTable(page);
    writeCells(page, "th",
               {inBrackets(tr("Class"), units.rateUnit()), inBrackets(tr("Area"), units.areaUnit()),
                inBrackets(tr("Planned"), units.amountUnit()), inBrackets(tr("Applied"), units.amountUnit()),
                inBrackets(tr("Difference"), units.amountUnit()), tr("of the plan")});
    for (size_t i = 0; i < classes.size(); ++i) {
        if (classes[i].area > 0.0)
            writeClass(page, className(int(i)), map.legend.at(int(i)).color, classes[i]);
    }
    if (tally.unprescribed.area > 0.0)
        writeClass(page, tr("No rate prescribed"), ActiveMap::unplannedColor(), tally.unprescribed);
    writeClass(page, tr("Total"), {}, total, true);
    endTable(page);
}

void ProductSection::writeClass(QXmlStreamWriter &page, const QString &name, const QColor &color,
                                const DriveTally::RateClass &ground, bool isTotal) const
{
    const auto amount = [this](double base) {
        return units.hasAmounts() ? ReportUnits::number(units.amount(base)) : QStringLiteral("\u2013");
    };
    page.writeStartElement(QStringLiteral("tr"));
    if (isTotal)
        page.writeAttribute(QStringLiteral("class"), QStringLiteral("total"));
    page.writeStartElement(QStringLiteral("td"));
    if (color.isValid()) {
        page.writeStartElement(QStringLiteral("span"));
        page.writeAttribute(QStringLiteral("class"), QStringLiteral("swatch"));
        page.writeAttribute(QStringLiteral("style"), QStringLiteral("background:") + color.name());
        page.writeCharacters({});
        page.writeEndElement();
    }
    page.writeCharacters(name);
    page.writeEndElement();
    const double difference = ground.applied - ground.planned;
    for (const QString &cell : {ReportUnits::number(units.area(ground.area)), amount(ground.planned),
                                amount(ground.applied), amount(difference), inPercent(ground.applied, ground.planned)})
        page.writeTextElement(QStringLiteral("td"), cell);
    page.writeEndElement();
}

void ProductSection::writeErrors(QXmlStreamWriter &page) const
{
    constexpr double left = 0.005; // Of the area, which would make the rest too narrow to be seen.
    constexpr int mostBars = 30;   // On either side.
    ErrorHistogram errors = tally.errors;
    const double total = errors.totalArea();
    if (total <= 0.0)
        return;
    while (errors.holding(left) > mostBars)
        errors.widen();
    const int last = std::max(1, errors.holding(left));
    const double binWidth = units.rate(errors.binWidth());
    double shown = 0.0;
    double most = 0.0;
    for (int place = -last; place <= last; ++place) {
        shown += errors.area(place);
        most = std::max(most, units.area(errors.area(place)));
    }
    page.writeTextElement(QStringLiteral("h3"), tr("Error: applied minus prescribed"));
    page.writeTextElement(QStringLiteral("p"),
                          tr("Within %1 of what is prescribed: %2 of the area. Beyond the plot: %3.")
                              .arg(ReportUnits::number(0.5 * binWidth) + QLatin1Char(' ') + units.rateUnit(),
                                   inPercent(errors.area(0), total), inPercent(total - shown, total)));
    Chart chart(&page, QRectF(-(last + 1) * binWidth, 0.0, 2.0 * (last + 1) * binWidth, 1.05 * most));
    chart.axes(inBrackets(tr("applied minus prescribed"), units.rateUnit()), inBrackets(tr("Area"), units.areaUnit()));
    for (int place = -last; place <= last; ++place) {
        const double area = units.area(errors.area(place));
        if (area > 0.0)
            chart.bar((place - 0.5) * binWidth, (place + 0.5) * binWidth, area);
    }
}

void ProductSection::writeChanges(QXmlStreamWriter &page) const
{
    std::vector<BorderWatch::Change> changes = tally.borders.changes();
    page.writeTextElement(QStringLiteral("h3"), tr("Early and late"));
    if (changes.empty()) {
        page.writeTextElement(QStringLiteral("p"), tr("No change of rate was crossed."));
        return;
    }
    const BorderWatch::Lateness median = tally.borders.median();
    page.writeTextElement(
        QStringLiteral("p"),
        tr("%1 changes of rate; median %2, %3 s. Above zero is late, below zero is early.")
            .arg(ShownNumber::text(double(changes.size())),
                 ReportUnits::number(units.length(median.metres), 2) + QLatin1Char(' ') + units.lengthUnit(),
                 seconds(median.seconds)));
    const auto isFarther = [](const BorderWatch::Change &a, const BorderWatch::Change &b) {
        return std::fabs(a.late.seconds) > std::fabs(b.late.seconds);
    };
    std::stable_sort(changes.begin(), changes.end(), isFarther);
    const size_t shown = std::min(changes.size(), size_t(mostChanges));
    if (shown < changes.size())
        page.writeTextElement(QStringLiteral("p"), tr("The %1 that are farthest from their borders:").arg(mostChanges));
    startTable(page);
    writeCells(page, "th",
               {inBrackets(tr("East of the middle"), units.lengthUnit()),
                inBrackets(tr("North of the middle"), units.lengthUnit()), inBrackets(tr("From"), units.rateUnit()),
                inBrackets(tr("To"), units.rateUnit()), inBrackets(tr("Late"), units.lengthUnit()),
                inBrackets(tr("Late"), QStringLiteral("s"))});
    for (size_t i = 0; i < shown; ++i)
        writeChange(page, changes[i]);
    endTable(page);
}

void ProductSection::writeChange(QXmlStreamWriter &page, const BorderWatch::Change &change) const
{
    const auto metres = [this](double value) { return ReportUnits::number(units.length(value), 1); };
    writeCells(page, "td",
               {metres(change.place.x()), metres(change.place.y()), ReportUnits::number(units.rate(change.before)),
                ReportUnits::number(units.rate(change.after)), metres(change.late.metres),
                seconds(change.late.seconds)});
}

void ProductSection::writeCurve(QXmlStreamWriter &page) const
{
    const FieldDrive::Curve curve = field.curves.empty() ? FieldDrive::Curve() : field.curves.at(size_t(number - 1));
    if (curve.empty())
        return;
    std::vector<QPointF> points;
    double least = 0.0;
    double most = 0.0;
    for (const auto &[lookAhead, late] : curve) {
        points.emplace_back(lookAhead / 1000.0, late);
        least = std::min(least, late);
        most = std::max(most, late);
    }
    const int best = FieldDrive::best(curve);
    const double room = 0.1 * std::max(0.1, most - least);
    page.writeTextElement(QStringLiteral("h3"), tr("Look-ahead"));
    page.writeTextElement(
        QStringLiteral("p"),
        tr("A look-ahead of %1 s puts the changes nearest to the borders.").arg(seconds(best / 1000.0)));
    Chart chart(&page, QRectF(0.0, least - room, std::max(0.1, points.back().x()), most - least + 2.0 * room));
    chart.axes(inBrackets(tr("look-ahead"), QStringLiteral("s")),
               inBrackets(tr("median lateness"), QStringLiteral("s")));
    chart.line(points);
    for (const QPointF &point : points)
        chart.mark(point, point.x() == best / 1000.0 ? seconds(point.x()) + QStringLiteral(" s") : QString());
}
