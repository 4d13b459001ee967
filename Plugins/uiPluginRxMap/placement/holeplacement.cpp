#include "holeplacement.h"

#include "boxindex.h"
#include "outerring.h"
#include "ringbox.h"
#include "ringtest.h"

#include <algorithm>
#include <cmath>
#include <limits>

using OrvikTypes::RX_POLYGON;

namespace {

/// The holes that no outer ring has taken yet.
class LiveHoles {
public:
    explicit LiveHoles(const QVector<RX_POLYGON *> &givenHoles)
        : holes(givenHoles)
        , isIndexed(givenHoles.size(), false)
        , index(boxes())
    {
    }

    /// Whether any hole's area is below `limit`.
    bool anyBelow(double limit) const { return limit > minArea; }

    /// All holes that may be inside the ring and whose area is below `limit`, in ascending order. `taken` says which
    /// are gone.
    void collect(const OuterRing &outer, double limit, const QVector<bool> &taken, QVector<BoxEntry> &found) const
    {
        found.resize(0);
        if (outer.isOrdinary()) {
            index.find(outer.box(), limit, found);
            std::sort(found.begin(), found.end(), [](const BoxEntry &a, const BoxEntry &b) { return a.id < b.id; });
            return;
        }
        for (int hole = 0; hole < holes.size(); ++hole) {
            if (!taken.at(hole) && limit > holes.at(hole)->area)
                found.append({{}, holes.at(hole)->area, hole});
        }
    }

    void remove(int hole)
    {
        if (isIndexed.at(hole))
            index.remove(hole);
    }

private:
    QVector<BoxEntry> boxes()
    {
        QVector<BoxEntry> entries;
        entries.reserve(holes.size());
        for (int hole = 0; hole < holes.size(); ++hole) {
            const RX_POLYGON &ring = *holes.at(hole);
            Box box;
            minArea = std::min(minArea, ring.area);
            if (vertexCount(ring) == 0 || std::isnan(ring.area) || !boxOfHole(ring, box))
                continue;
            entries.append({box, ring.area, hole});
            isIndexed[hole] = true;
        }
        return entries;
    }

    const QVector<RX_POLYGON *> &holes;
    double minArea = std::numeric_limits<double>::infinity();
    QVector<bool> isIndexed;
    BoxIndex index;
};

} // namespace

HolePlacement::HolePlacement(const QVector<RX_POLYGON *> &outers, const QVector<RX_POLYGON *> &holes)
    : next(holes.size(), -1)
    , placed(holes.size(), false)
{
    if (holes.isEmpty() || outers.isEmpty())
        return;
    first.fill(-1, outers.size());
    LiveHoles live(holes);
    QVector<BoxEntry> found;
    for (int i = 0; i < outers.size(); ++i) {
        const double limit = outers.at(i)->area - 10.0;
        if (!live.anyBelow(limit))
            continue;
        OuterRing outer(*outers.at(i));
        live.collect(outer, limit, placed, found);
        int last = -1;
        for (const BoxEntry &entry : qAsConst(found)) {
            if (!outer.contains(*holes.at(entry.id)))
                continue;
            (last < 0 ? first[i] : next[last]) = entry.id;
            last = entry.id;
            placed[last] = true;
            live.remove(last);
        }
    }
}
