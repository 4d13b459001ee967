#include "findinglist.h"

#include "Backend/backendtext.h"

#include <algorithm>
#include <utility>

namespace {

QString nounOf(MapFinding::Kind kind)
{
    switch (kind) {
    case MapFinding::Kind::Overlap:
        return BackendText::tr("overlaps");
    case MapFinding::Kind::Gap:
        return BackendText::tr("gaps");
    case MapFinding::Kind::Sliver:
        return BackendText::tr("slivers");
    case MapFinding::Kind::Narrow:
        return BackendText::tr("narrow polygons");
    case MapFinding::Kind::Outlier:
        return BackendText::tr("rates far from the rest");
    case MapFinding::Kind::Duplicate:
        return BackendText::tr("polygons of the same shape");
    default:
        return BackendText::tr("findings of this kind");
    }
}

} // namespace

void FindingList::setAside(const MapFinding &finding, Share &share)
{
    ++share.others;
    share.otherArea += finding.area.value_or(0.0);
    for (const int record : finding.records) {
        if (share.otherRecords.size() < MapFinding::mostRecords)
            share.otherRecords.append(record);
    }
}

void FindingList::add(MapFinding finding, double weight)
{
    Share &share = shares[finding.kind];
    const auto graver = [](const Weighed &a, const Weighed &b) { return a.isGraver(b); };
    share.gravest.push_back({weight, count++, std::move(finding)});
    std::push_heap(share.gravest.begin(), share.gravest.end(), graver);
    if (share.gravest.size() <= mostOfAKind)
        return;
    std::pop_heap(share.gravest.begin(), share.gravest.end(), graver);
    setAside(share.gravest.back().finding, share);
    share.gravest.pop_back();
}

MapFinding FindingList::summary(MapFinding::Kind kind, const Share &share)
{
    MapFinding finding;
    finding.kind = kind;
    finding.text = BackendText::tr("%1 more %2").arg(QString::number(share.others), nounOf(kind));
    finding.records = share.otherRecords;
    std::sort(finding.records.begin(), finding.records.end());
    finding.records.erase(std::unique(finding.records.begin(), finding.records.end()), finding.records.end());
    if (share.otherArea > 0.0) {
        finding.area = share.otherArea;
        finding.text += BackendText::tr(", %1 m2 in all").arg(BackendText::number(share.otherArea, 'f', 1));
    }
    return finding;
}

QList<MapFinding> FindingList::take()
{
    QList<MapFinding> findings;
    for (auto &[kind, share] : shares) {
        std::sort(share.gravest.begin(), share.gravest.end(),
                  [](const Weighed &a, const Weighed &b) { return a.isGraver(b); });
        for (Weighed &weighed : share.gravest)
            findings.append(std::move(weighed.finding));
        if (share.others > 0)
            findings.append(summary(kind, share));
    }
    shares.clear();
    return findings;
}
