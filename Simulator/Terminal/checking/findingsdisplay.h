#pragma once

#include "Backend/loadreport.h"
#include "findingspage.h"

#include <QHash>
#include <QObject>

#include <optional>

class Machine;
class PrescriptionBackend;
class TerminalWindow;
class TouchButton;
class Vehicle;

/// Has each map checked once it is loaded, and shows what is found: a button with the count in the status bar, which
/// opens the list. A finding that is touched there is marked on the map.
class FindingsDisplay : public QObject {
    Q_OBJECT

public:
    /// None of these is owned; all outlive this.
    FindingsDisplay(const Machine *machine, const Vehicle *vehicle, TerminalWindow *window);

    /// Hides the list.
    void leave();

Q_SIGNALS:
    /// A finding in the map of that group is about to be shown. `column`: in which it is seen; empty for any.
    void mapChosen(const QString &group, const QString &column);

private:
    void check(const LoadReport &report);
    void take(const QString &group, const QList<MapFinding> &found);
    /// What is found in the maps that feed a product, oldest first.
    void update();
    /// The finding for a map that shares no plane with any of the others.
    std::optional<MapFinding> distanceFrom(const QList<LoadReport> &others, const LoadReport &map) const;
    void toggle();
    void show(int number);

    const Machine *machine;
    PrescriptionBackend *backend;
    const Vehicle *vehicle;
    TerminalWindow *window;
    TouchButton *button;
    FindingsPage *page;
    /// By group.
    QHash<QString, QList<MapFinding>> findings;
    /// As the page lists them.
    QList<FindingsPage::Entry> entries;
};
