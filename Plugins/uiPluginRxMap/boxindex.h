#pragma once

#include <QVector>

/// An axis-parallel box.
struct Box {
    double minX;
    double minY;
    double maxX;
    double maxY;

    bool contains(const Box &other) const
    {
        return minX <= other.minX && other.maxX <= maxX && minY <= other.minY && other.maxY <= maxY;
    }
};

/// A packed tree of boxes that finds those that contain a given one.
class BoxIndex {
public:
    /// `boxes` are finite; `ids` are what find() answers with, in the same order.
    BoxIndex(const QVector<Box> &boxes, const QVector<int> &ids);

    /// Appends the ids of all boxes that contain `box` to `found`, in no particular order.
    void find(const Box &box, QVector<int> &found) const;

private:
    void packLeaves(const QVector<Box> &boxes, const QVector<int> &ids);
    void findBelow(int level, int node, const Box &box, QVector<int> &found) const;

    QVector<QVector<Box>> levels; ///< From the leaves up; node n has the nodes n * fanOut ... below it.
    QVector<int> leafIds;
};
