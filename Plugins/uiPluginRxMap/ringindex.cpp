#include "ringindex.h"

#include "ringtest.h"

#include <QtGlobal>

#include <cmath>

RingIndex::RingIndex(const OrvikTypes::RX_POLYGONVERTEX *vertices, int count)
    : vertices(vertices)
    , count(count)
    , bottom(vertices[0].y)
    , top(vertices[0].y)
{
    double climb = 0.0;
    for (int i = 0, j = count - 1; i < count; j = i++) {
        bottom = qMin(bottom, vertices[i].y);
        top = qMax(top, vertices[i].y);
        climb += std::fabs(vertices[i].y - vertices[j].y);
    }
    // Bands no lower than this keep the entries of all edges together below twice the number of edges, beside the two
    // end bands of each.
    const double scale = 2.0 * count / climb;
    bandsPerMetre = std::isfinite(scale) ? scale : 0.0;

    bandStart.fill(0, bandOf(top) + 2);
    for (int i = 0; i < count; ++i) {
        int first = 0;
        int last = -1;
        bandsOfEdge(i, first, last);
        for (int band = first; band <= last; ++band)
            ++bandStart[band + 1];
    }
    for (int band = 1; band < bandStart.size(); ++band)
        bandStart[band] += bandStart.at(band - 1);
    edges.resize(bandStart.constLast());
    QVector<int> next = bandStart;
    for (int i = 0; i < count; ++i) {
        int first = 0;
        int last = -1;
        bandsOfEdge(i, first, last);
        for (int band = first; band <= last; ++band)
            edges[next[band]++] = i;
    }
}

// Never falls as y rises, rounding included, so an edge that spans y reaches into y's band.
int RingIndex::bandOf(double y) const
{
    return static_cast<int>((y - bottom) * bandsPerMetre);
}

void RingIndex::bandsOfEdge(int i, int &first, int &last) const
{
    const double y = vertices[i].y;
    const double previous = vertices[i == 0 ? count - 1 : i - 1].y;
    if (y == previous)
        return;
    first = bandOf(qMin(y, previous));
    last = bandOf(qMax(y, previous));
}

bool RingIndex::isInside(double x, double y) const
{
    if (!(y >= bottom && y < top))
        return false;
    const int band = bandOf(y);
    bool inside = false;
    for (int entry = bandStart.at(band); entry < bandStart.at(band + 1); ++entry) {
        const int i = edges.at(entry);
        if (edgeToggles(vertices[i == 0 ? count - 1 : i - 1], vertices[i], x, y))
            inside = !inside;
    }
    return inside;
}
