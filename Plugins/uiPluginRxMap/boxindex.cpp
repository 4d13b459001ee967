#include "boxindex.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int fanOut = 8;

void include(Box &box, const Box &other)
{
    box.minX = qMin(box.minX, other.minX);
    box.minY = qMin(box.minY, other.minY);
    box.maxX = qMax(box.maxX, other.maxX);
    box.maxY = qMax(box.maxY, other.maxY);
}

double centreX(const Box &box)
{
    return box.minX / 2.0 + box.maxX / 2.0;
}

double centreY(const Box &box)
{
    return box.minY / 2.0 + box.maxY / 2.0;
}

} // namespace

BoxIndex::BoxIndex(const QVector<Box> &boxes, const QVector<int> &ids)
{
    packLeaves(boxes, ids);
    while (levels.constLast().size() > fanOut) {
        const QVector<Box> &below = levels.constLast();
        QVector<Box> level;
        level.reserve((below.size() + fanOut - 1) / fanOut);
        for (int i = 0; i < below.size(); ++i) {
            if (i % fanOut == 0)
                level.append(below.at(i));
            else
                include(level.last(), below.at(i));
        }
        levels.append(level);
    }
}

// Boxes that lie near each other come to lie in one node: sorted into columns by x, in each column by y.
void BoxIndex::packLeaves(const QVector<Box> &boxes, const QVector<int> &ids)
{
    QVector<int> order(boxes.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(),
              [&boxes](int a, int b) { return centreX(boxes.at(a)) < centreX(boxes.at(b)); });
    const int nodes = (boxes.size() + fanOut - 1) / fanOut;
    const int columns = qMax(1, static_cast<int>(std::sqrt(nodes)));
    const int columnSize = (boxes.size() + columns - 1) / columns;
    for (int start = 0; start < order.size(); start += columnSize) {
        const int end = qMin(start + columnSize, order.size());
        std::sort(order.begin() + start, order.begin() + end,
                  [&boxes](int a, int b) { return centreY(boxes.at(a)) < centreY(boxes.at(b)); });
    }

    QVector<Box> leaves;
    leaves.reserve(order.size());
    leafIds.reserve(order.size());
    for (int i : qAsConst(order)) {
        leaves.append(boxes.at(i));
        leafIds.append(ids.at(i));
    }
    levels.append(leaves);
}

void BoxIndex::find(const Box &box, QVector<int> &found) const
{
    const int top = levels.size() - 1;
    for (int node = 0; node < levels.at(top).size(); ++node)
        findBelow(top, node, box, found);
}

void BoxIndex::findBelow(int level, int node, const Box &box, QVector<int> &found) const
{
    if (!levels.at(level).at(node).contains(box))
        return;
    if (level == 0) {
        found.append(leafIds.at(node));
        return;
    }
    const int end = qMin((node + 1) * fanOut, levels.at(level - 1).size());
    for (int below = node * fanOut; below < end; ++below)
        findBelow(level - 1, below, box, found);
}
