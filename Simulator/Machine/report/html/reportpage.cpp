#include "reportpage.h"

#include "activemap.h"
#include "drivenfield.h"
#include "drivetally.h"
#include "machine.h"
#include "productsection.h"
#include "reportunits.h"
#include "simulation.h"
#include "vehicle.h"
#include "visibletext.h"

#include <QXmlStreamWriter>

namespace {

const char style[] = "body{font:15px/1.45 sans-serif;color:#222;background:#fff;max-width:1080px;margin:24px auto;"
                     "padding:0 16px}"
                     "h1{font-size:26px}h2{font-size:21px;margin-top:40px;border-bottom:2px solid #bbb}"
                     "h3{font-size:16px;margin:24px 0 6px}"
                     "table{border-collapse:collapse;font-variant-numeric:tabular-nums}"
                     "th,td{padding:3px 12px;border-bottom:1px solid #ddd;text-align:right}"
                     "th:first-child,td:first-child{text-align:left}tr.total td{font-weight:bold}"
                     ".maps{display:flex;flex-wrap:wrap;gap:16px}figure{flex:1 1 "
                     "300px;margin:0}.wide{overflow-x:auto}figcaption{font-weight:bold}"
                     ".maps img{width:100%;border:1px solid #bbb;background:#eee;image-rendering:pixelated}"
                     ".swatch{display:inline-block;width:22px;height:14px;margin-right:8px;border:1px solid #888;"
                     "vertical-align:middle}"
                     "svg{width:640px;max-width:100%}svg text{font-size:12px;fill:#222}"
                     "svg .grid{stroke:#ddd}svg .zero{stroke:#555}svg .bar{fill:#4a7ab5}"
                     "svg polyline{fill:none;stroke:#4a7ab5;stroke-width:2}svg circle{fill:#c0392b}"
                     "@media print{h2{break-before:page}}";

void writeRow(QXmlStreamWriter &page, const QString &name, const QString &value)
{
    page.writeStartElement(QStringLiteral("tr"));
    page.writeTextElement(QStringLiteral("td"), name);
    page.writeTextElement(QStringLiteral("td"), value);
    page.writeEndElement();
}

QString withUnit(double value, const QString &unit)
{
    return ReportUnits::number(value) + QLatin1Char(' ') + unit;
}

} // namespace

QByteArray ReportPage::make(const DrivenField &field)
{
    QByteArray content;
    QXmlStreamWriter page(&content);
    page.writeDTD(QStringLiteral("<!DOCTYPE html>"));
    page.writeStartElement(QStringLiteral("html"));
    writeHead(page);
    page.writeStartElement(QStringLiteral("body"));
    writeSummary(page, field);
    for (int number = 1; number <= field.simulation->machine()->products().size(); ++number)
        ProductSection(field, number).write(page);
    page.writeEndElement();
    page.writeEndElement();
    content += '\n';
    return content;
}

void ReportPage::writeHead(QXmlStreamWriter &page)
{
    page.writeStartElement(QStringLiteral("head"));
    page.writeEmptyElement(QStringLiteral("meta"));
    page.writeAttribute(QStringLiteral("charset"), QStringLiteral("utf-8"));
    page.writeEmptyElement(QStringLiteral("meta"));
    page.writeAttribute(QStringLiteral("name"), QStringLiteral("viewport"));
    page.writeAttribute(QStringLiteral("content"), QStringLiteral("width=device-width"));
    page.writeTextElement(QStringLiteral("title"), tr("Report of a drive"));
    page.writeTextElement(QStringLiteral("style"), QLatin1String(style));
    page.writeEndElement();
}

void ReportPage::writeSummary(QXmlStreamWriter &page, const DrivenField &field)
{
    const ReportUnits units(*field.simulation->machine());
    const int seconds = int(field.tally->seconds());
    page.writeTextElement(QStringLiteral("h1"), tr("Report of a drive"));
    page.writeStartElement(QStringLiteral("table"));
    writeRow(page, tr("Prescription"), VisibleText::of(field.file));
    writeRow(page, tr("Time"), tr("%1 h %2 min").arg(seconds / 3600).arg(seconds / 60 % 60));
    writeRow(page, tr("Distance"), withUnit(units.distance(field.tally->distance()), units.distanceUnit()));
    writeRow(page, tr("Area worked"), withUnit(units.area(field.tally->workedArea()), units.areaUnit()));
    writeRow(page, tr("Working width"),
             withUnit(units.length(field.simulation->vehicle()->size().width), units.lengthUnit()));
    writeDefaultRates(page, *field.simulation->machine());
    page.writeEndElement();
}

void ReportPage::writeDefaultRates(QXmlStreamWriter &page, const Machine &machine)
{
    const QList<MachineProduct> products = machine.loadedProducts();
    for (int number = 1; number <= products.size(); ++number) {
        const MachineProduct &product = products.at(number - 1);
        const ReportUnits units(machine, number);
        if (product.isDriven && ActiveMap::find(*machine.dataBroker(), product.rateCalName).isValid())
            writeRow(page, tr("Default rate of %1").arg(VisibleText::of(product.name)),
                     withUnit(units.rate(product.defaultRate), units.rateUnit()));
    }
}
