#pragma once

#include "Backend/mapfinding.h"

#include <QList>
#include <QString>
#include <QWidget>

class QLabel;
class QScrollArea;

/// The list of what is wrong with the loaded maps, over the field view. It is scrolled with a finger, or
/// to the row that has the keyboard; Escape leaves it.
class FindingsPage : public QWidget {
    Q_OBJECT

public:
    struct Entry {
        /// The map's file where several maps are loaded, else empty.
        QString file;
        /// Group of the map.
        QString group;
        MapFinding finding;
    };

    /// Hidden at first.
    explicit FindingsPage(QWidget *parent);

    /// Rows are named "finding0", "finding1", ...; the list stays where it was scrolled to.
    void setEntries(const QList<Entry> &entries);

Q_SIGNALS:
    /// The row of that number was touched; its finding has a place.
    void chosen(int number);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Of a finger over the list: pixels from the top where it came down, and how far the list was scrolled then.
    struct Drag {
        int from = 0;
        int scrolled = 0;
        bool isUnderWay = false;
    };

    QLabel *heading;
    QScrollArea *area;
    Drag drag;
};
