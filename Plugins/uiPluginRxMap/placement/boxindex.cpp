#include "boxindex.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace {

constexpr int fanOut = 8;

void include(Box &box, const Box &other)
{
    box.minX = qMin(box.minX, other.minX);
    box.minY = qMin(box.minY, other.minY);
    box.maxX = qMax(box.maxX, other.maxX);
    box.maxY = qMax(box.maxY, other.maxY);
}

double centreX(const BoxEntry &entry)
{
    return entry.box.minX / 2.0 + entry.box.maxX / 2.0;
}

double centreY(const BoxEntry &entry)
{
    return entry.box.minY / 2.0 + entry.box.maxY / 2.0;
}

} // namespace

BoxIndex::BoxIndex(QVector<BoxEntry> entries)
{
    packLeaves(entries);
    while (levels.constLast().size() > fanOut) {
        const QVector<Node> &below = levels.constLast();
        QVector<Node> level;
        level.reserve((below.size() + fanOut - 1) / fanOut);
        for (int i = 0; i < below.size(); ++i) {
            if (i % fanOut == 0) {
                level.append(below.at(i));
                continue;
            }
            Node &node = level.last();
            include(node.box, below.at(i).box);
            node.minArea = qMin(node.minArea, below.at(i).minArea);
            node.left += below.at(i).left;
        }
        levels.append(level);
    }
}

// Sort-tile-recursive packing (Leutenegger, Lopez, Edgington 1997): boxes that lie near each other come to lie in one
// node, sorted into columns by x, in each column by y.
void BoxIndex::packLeaves(QVector<BoxEntry> &entries)
{
    std::sort(entries.begin(), entries.end(),
              [](const BoxEntry &a, const BoxEntry &b) { return centreX(a) < centreX(b); });
    const int nodes = (entries.size() + fanOut - 1) / fanOut;
    const int columns = qMax(1, static_cast<int>(std::sqrt(nodes)));
    const int columnSize = (entries.size() + columns - 1) / columns;
    for (int start = 0; start < entries.size(); start += columnSize) {
        const int end = qMin(start + columnSize, entries.size());
        std::sort(entries.begin() + start, entries.begin() + end,
                  [](const BoxEntry &a, const BoxEntry &b) { return centreY(a) < centreY(b); });
    }

    int maxId = -1;
    for (const BoxEntry &entry : qAsConst(entries))
        maxId = qMax(maxId, entry.id);
    leafOfId.fill(-1, maxId + 1);
    QVector<Node> leaves;
    leaves.reserve(entries.size());
    leafIds.reserve(entries.size());
    for (const BoxEntry &entry : qAsConst(entries)) {
        leafOfId[entry.id] = leaves.size();
        leaves.append({entry.box, entry.area, 1});
        leafIds.append(entry.id);
    }
    levels.append(leaves);
}

void BoxIndex::find(const Box &box, double area, QVector<BoxEntry> &found) const
{
    const int top = levels.size() - 1;
    for (int node = 0; node < levels.at(top).size(); ++node)
        findBelow(top, node, box, area, found);
}

void BoxIndex::findBelow(int level, int node, const Box &box, double area, QVector<BoxEntry> &found) const
{
    const Node &here = levels.at(level).at(node);
    if (here.left == 0 || here.minArea >= area || !box.touches(here.box))
        return;
    if (level == 0) {
        if (box.contains(here.box))
            found.append({here.box, here.minArea, leafIds.at(node)});
        return;
    }
    const int end = qMin((node + 1) * fanOut, levels.at(level - 1).size());
    for (int below = node * fanOut; below < end; ++below)
        findBelow(level - 1, below, box, area, found);
}

void BoxIndex::remove(int id)
{
    int node = leafOfId.at(id);
    for (QVector<Node> &level : levels) {
        --level[node].left;
        node /= fanOut;
    }
}
