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

    bool touches(const Box &other) const
    {
        return minX <= other.maxX && other.minX <= maxX && minY <= other.maxY && other.minY <= maxY;
    }
};

/// The box of one ring, with the area that the ring is published with.
struct BoxEntry {
    Box box;     ///< Finite.
    double area; ///< Not NaN.
    int id;      ///< Tells the boxes of an index apart; 0 or above.
};

Q_DECLARE_TYPEINFO(BoxEntry, Q_PRIMITIVE_TYPE);

/// A packed R-tree (Guttman 1984) of boxes that finds those inside a given one, and from which boxes are taken as they
/// are used up.
class BoxIndex {
public:
    explicit BoxIndex(QVector<BoxEntry> entries);

    /// Appends all boxes inside `box` whose area is less than `area` to `found`, in no particular order.
    void find(const Box &box, double area, QVector<BoxEntry> &found) const;
    /// Takes a box out; `id` is one of the index and still in it.
    void remove(int id);

private:
    /// What is known of everything below a node; a node with no boxes left is skipped.
    struct Node {
        Box box;
        double minArea;
        int left;
    };

    void packLeaves(QVector<BoxEntry> &entries);
    void findBelow(int level, int node, const Box &box, double area, QVector<BoxEntry> &found) const;

    QVector<QVector<Node>> levels; ///< From the leaves up; node n has the nodes n * fanOut ... below it.
    QVector<int> leafIds;
    QVector<int> leafOfId;
};
