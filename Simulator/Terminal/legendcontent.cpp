#include "legendcontent.h"

#include "Backend/loadreport.h"
#include "activemap.h"
#include "machine.h"
#include "reportunits.h"

LegendPanel::Content legendContent(const Machine &machine, const LoadReport &report, const ActiveMap &map)
{
    const int number = machine.activeProduct();
    const ReportUnits units(machine, number);
    LegendPanel::Content content;
    content.product = machine.products().at(number - 1).name;
    content.source = report.sources.value(map.mapping);
    content.classes = map.legend;
    content.hasSingleRates = report.hasSingleRates.value(map.mapping);
    content.factor = units.rate(1.0);
    content.unit = units.rateUnit();
    // An area for the polygons without a rate may follow.
    const QList<double> areas = report.areas.value(map.mapping).mid(0, map.legend.size());
    for (const double area : areas)
        content.areas.append(units.area(area));
    content.areaUnit = units.areaUnit();
    content.amount = units.amount(report.amounts.value(map.mapping));
    content.amountUnit = units.amountUnit();
    return content;
}
