#include "loadfindings.h"

#include "Backend/backendtext.h"
#include "planeshape.h"

#include <algorithm>
#include <utility>

namespace {

/// Longer lists of records than this are cut short in a text.
constexpr int mostTold = 10;

/// "records 1, 4 and 12 more".
QString textOf(const std::vector<int> &records)
{
    QStringList numbers;
    for (size_t i = 0; i < records.size() && i < size_t(mostTold); ++i)
        numbers.append(QString::number(records[i]));
    const int more = int(records.size()) - numbers.size();
    return (records.size() == 1 ? BackendText::tr("record ") : BackendText::tr("records "))
        + numbers.join(QStringLiteral(", ")) + (more > 0 ? BackendText::tr(" and %1 more").arg(more) : QString());
}

/// Area and extent of all parts of the records; the place is the middle of the first part.
void locate(MapFinding &finding, const std::vector<int> &records, const std::vector<PlanePolygon> &polygons)
{
    RingExtent all;
    for (const PlanePolygon &polygon : polygons) {
        if (!std::binary_search(records.begin(), records.end(), polygon.record))
            continue;
        const RingExtent extent = PlaneShape::extent(polygon);
        finding.area = finding.area.value_or(0.0) + polygonArea(polygon);
        if (!finding.place)
            finding.place = QPointF(0.5 * (extent.minX + extent.maxX), 0.5 * (extent.minY + extent.maxY));
        all.include(extent);
    }
    if (finding.place)
        finding.extent = PlaneShape::rectangle(all);
}

} // namespace

LoadFindings::LoadFindings(LoadReport &loadReport)
    : report(loadReport)
{
}

void LoadFindings::remark(const QString &text)
{
    report.warnings.append(QStringLiteral("%1: %2").arg(report.path, text));
}

void LoadFindings::add(const MapFinding &finding)
{
    report.findings.append(finding);
    remark(finding.text);
}

void LoadFindings::add(MapFinding::Kind kind, const QString &text, int record)
{
    MapFinding finding;
    finding.kind = kind;
    finding.text = text;
    if (record >= 0)
        finding.records.append(record);
    add(finding);
}

void LoadFindings::addCounted(MapFinding::Kind kind, const std::vector<int> &records, const Words &words,
                              const std::vector<PlanePolygon> &polygons)
{
    if (records.empty())
        return;
    std::vector<int> unique = records;
    std::sort(unique.begin(), unique.end());
    unique.erase(std::unique(unique.begin(), unique.end()), unique.end());
    MapFinding finding;
    finding.kind = kind;
    finding.column = words.column;
    finding.text =
        QStringLiteral("%1 %2 (%3)")
            .arg(QString::number(records.size()), records.size() == 1 ? words.one : words.many, textOf(unique));
    const size_t named = std::min(unique.size(), size_t(MapFinding::mostRecords));
    for (size_t i = 0; i < named; ++i)
        finding.records.append(unique[i]);
    locate(finding, unique, polygons);
    add(finding);
}
