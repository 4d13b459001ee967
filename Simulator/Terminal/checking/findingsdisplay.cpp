#include "findingsdisplay.h"

#include "Backend/prescriptionbackend.h"
#include "fieldview.h"
#include "findingunits.h"
#include "machine.h"
#include "mapoverlay.h"
#include "showndistance.h"
#include "shownnumber.h"
#include "statusbar.h"
#include "terminalwindow.h"
#include "theme.h"
#include "touchbutton.h"
#include "vehicle.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// A marked extent is shown with as much again around it, and never less than this, metres.
constexpr double leastView = 60.0;

QRectF viewAround(const QRectF &extent)
{
    const double reach = std::max({extent.width(), extent.height(), 0.5 * leastView});
    return extent.adjusted(-reach, -reach, reach, reach);
}

} // namespace

FindingsDisplay::FindingsDisplay(const Machine *terminalMachine, const Vehicle *driven, TerminalWindow *display)
    : machine(terminalMachine)
    , backend(machine->backend())
    , vehicle(driven)
    , window(display)
    , button(new TouchButton(QString()))
    , page(new FindingsPage(display))
{
    button->setObjectName(QStringLiteral("findingsButton"));
    button->setNote(tr("Map check"));
    button->setMinimumWidth(2 * Theme::touchTarget);
    button->hide();
    window->statusBar()->addButton(button);
    connect(button, &TouchButton::clicked, this, &FindingsDisplay::toggle);
    connect(page, &FindingsPage::chosen, this, &FindingsDisplay::show);
    connect(backend, &PrescriptionBackend::finished, this, &FindingsDisplay::check);
    connect(backend, &PrescriptionBackend::checked, this, &FindingsDisplay::take);
    connect(backend, &PrescriptionBackend::mapsChanged, this, &FindingsDisplay::update);
}

void FindingsDisplay::check(const LoadReport &report)
{
    // Where nobody sees the result, as in a drive without a display, a check would only take time.
    if (!report.isOk() || !window->isVisible())
        return;
    findings.remove(report.group);
    backend->startCheck(report.group, vehicle->size().width);
    update();
}

void FindingsDisplay::take(const QString &group, const QList<MapFinding> &found)
{
    findings.insert(group, found);
    update();
}

void FindingsDisplay::update()
{
    entries.clear();
    const QHash<QString, QList<MapFinding>> known = std::exchange(findings, {});
    const QList<LoadReport> maps = backend->maps();
    const auto isUsed = [this](const LoadReport &map) { return !machine->columnsOf(map.group).isEmpty(); };
    const bool areSeveral = std::count_if(maps.begin(), maps.end(), isUsed) > 1;
    const FindingUnits units(machine->unitSystem());
    QList<LoadReport> before;
    for (const LoadReport &map : maps) {
        const QString file = areSeveral ? PrescriptionBackend::nameOf(map.path) : QString();
        if (known.contains(map.group))
            findings.insert(map.group, known.value(map.group));
        if (!isUsed(map))
            continue;
        if (const std::optional<MapFinding> distance = distanceFrom(before, map))
            entries.append({file, map.group, *distance});
        before.append(map);
        for (MapFinding finding : known.value(map.group)) {
            finding.text = units.textOf(finding);
            entries.append({file, map.group, finding});
        }
    }
    window->overlay()->setMark({}, {});
    button->setText(ShownNumber::text(entries.size()));
    button->setAccessibleName(tr("Map check: %1").arg(button->text()));
    button->setVisible(!entries.isEmpty());
    page->setEntries(entries);
    if (entries.isEmpty())
        page->hide();
}

std::optional<MapFinding> FindingsDisplay::distanceFrom(const QList<LoadReport> &others, const LoadReport &map) const
{
    const LoadReport *nearest = nullptr;
    double distance = HUGE_VAL;
    for (const LoadReport &other : others) {
        const double away = other.distanceTo(map.origin);
        if (away < distance)
            nearest = &other;
        distance = std::min(distance, away);
    }
    // Maps of one origin share a plane.
    if (nearest == nullptr || nearest->origin == map.origin)
        return {};
    MapFinding finding;
    finding.kind = MapFinding::Kind::FarAway;
    finding.text =
        tr("lies %1 from %2, which feeds products, too")
            .arg(ShownDistance::text(distance, machine->unitSystem()), PrescriptionBackend::nameOf(nearest->path));
    finding.extent = map.bounds;
    finding.place = map.bounds.center();
    return finding;
}

void FindingsDisplay::toggle()
{
    if (page->isVisible()) {
        page->hide();
        return;
    }
    window->overlay()->setMark({}, {});
    page->setGeometry(
        window->fieldView()->geometry().adjusted(Theme::margin, Theme::margin, -Theme::margin, -Theme::margin));
    page->show();
    page->raise();
    page->setFocus();
}

void FindingsDisplay::leave()
{
    page->hide();
}

void FindingsDisplay::show(int number)
{
    const FindingsPage::Entry entry = entries.at(number);
    const MapFinding &finding = entry.finding;
    page->hide();
    Q_EMIT mapChosen(entry.group, finding.column);
    window->fieldView()->frame(viewAround(finding.extent));
    window->overlay()->setMark(finding.extent, *finding.place);
}
