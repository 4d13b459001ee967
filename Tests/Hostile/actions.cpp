#include "actions.h"

#include "dialoggroups.h"
#include "hostilehost.h"

#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/uigraphicslist.h"

#include <random>

namespace {

using Host = HostileHost;

DataBrokerGroup *mapOf(const Host &host, int number)
{
    const QList<DataBrokerGroup *> maps = host.maps();
    return maps.isEmpty() ? nullptr : maps.at(number % maps.size());
}

/// Mostly the name of one that exists.
QString aamName(int number)
{
    const QStringList others{"QmlUnitsConverter", "nothing", "", "system.current.job"};
    return number % 10 < 9 ? QStringLiteral("system.aam.%1").arg(1 + number % 3) : others.at(number / 10 % 4);
}

void replaceVehicle(Host &host, int kind, bool stopped)
{
    const QString name = QStringLiteral("mainGpsSolution");
    host.remove(name);
    DataBrokerGroup *group = nullptr;
    if (kind == 0)
        group = new TextGpsGroup(name);
    else if (kind == 1)
        group = new NumberGpsGroup(name);
    else if (kind == 2)
        group = new ListGpsGroup(name);
    else if (kind < 7)
        group = new GpsGroup(name);
    if (group == nullptr)
        return;
    group->setProperty("vehicleIsStopped", kind == 0 ? QVariant(stopped ? "true" : "") : QVariant(stopped));
    host.publish(group);
}

template <typename Group> void replace(Host &host, const QString &name, int kind)
{
    host.remove(name);
    if (kind > 1)
        host.publish(new Group(name));
    else if (kind > 0)
        host.publish(new DataBrokerGroup(name));
}

const Action actions[] = {
    {"make-list", 5, false, true,
     [](Host &host, int a, int b) {
         host.makeList(a % 8 == 0 ? "rxmapgraphicslist" : "RxMapGraphicsList");
         if (b % 4 != 0)
             host.initList();
     }},
    {"init-list", 6, false, true, [](Host &host, int, int) { host.initList(); }},
    {"delete-list", 2, false, true, [](Host &host, int, int) { delete host.list; }},
    {"make-widget", 5, false, true,
     [](Host &host, int a, int) { host.makeWidget(a % 8 == 0 ? "rxMapWidget" : "RxMapWidget"); }},
    {"delete-widget", 2, false, true, [](Host &host, int a, int b) { host.deleteWidget(a, b % 2 == 0); }},
    {"delete-everything", 1, false, true, [](Host &host, int, int) { host.deleteEverything(); }},
    {"delete-plugin", 1, false, true, [](Host &host, int, int) { host.deletePlugin(); }},
    {"reload-library", 1, false, false, [](Host &host, int, int) { host.reloadLibrary(); }},
    {"publish-map", 9, false, true, [](Host &host, int a, int b) { host.publishMap(a, b); }},
    {"remove-map", 4, false, true,
     [](Host &host, int a, int b) {
         if (DataBrokerGroup *map = mapOf(host, a))
             host.removeMap(*map, b % 2 == 0);
     }},
    {"fill-map", 6, false, true,
     [](Host &host, int a, int b) {
         if (DataBrokerGroup *map = mapOf(host, a))
             host.fill(*map, b);
     }},
    {"set-mappings", 3, false, true,
     [](Host &host, int a, int b) {
         if (DataBrokerGroup *map = mapOf(host, a))
             host.setMappings(*map, b);
     }},
    {"set-settings", 4, false, true,
     [](Host &host, int a, int b) {
         if (DataBrokerGroup *map = mapOf(host, a))
             host.setSettings(*map, b);
     }},
    {"protect-map", 2, false, false,
     [](Host &host, int a, int b) {
         if (DataBrokerGroup *map = mapOf(host, a))
             host.setProtected(*map, b % 2 == 0);
     }},
    {"toggle-validity", 2, false, true,
     [](Host &host, int a, int) {
         if (DataBrokerGroup *map = mapOf(host, a))
             host.toggleValidity(*map);
     }},
    {"activate", 10, false, true, [](Host &host, int a, int) { host.activate(aamName(a)); }},
    {"rename-product", 2, false, true,
     [](Host &host, int a, int b) {
         if (auto *aam = findGroup<DbGroupAAM>(host.broker, aamName(a)))
             aam->setProductGroupName(QStringLiteral("system.productGroup.%1").arg(b % 4));
     }},
    {"replace-aam", 1, false, true, [](Host &host, int a, int b) { replace<DbGroupAAM>(host, aamName(a % 3), b % 4); }},
    {"replace-job", 1, false, true,
     [](Host &host, int, int b) { replace<DbGroupJob>(host, "system.current.job", b % 8); }},
    {"replace-units", 1, false, true,
     [](Host &host, int, int b) { replace<DbGroupQmlUnitsConverter>(host, "QmlUnitsConverter", b % 6); }},
    {"switch-units", 4, false, true,
     [](Host &host, int a, int b) {
         if (auto *units = findGroup<DbGroupQmlUnitsConverter>(host.broker, "QmlUnitsConverter")) {
             units->setAreaUnitSystem(a % 5 - 1);
             units->setPressureUnit(b % 9 - 1);
         }
     }},
    {"switch-language", 3, false, true, [](Host &host, int a, int) { host.setLanguage(a); }},
    {"lose-context", 2, false, true, [](Host &host, int, int) { host.loseContext(); }},
    {"make-context", 3, false, true, [](Host &host, int, int) { host.view.makeContext(); }},
    {"set-products", 2, false, true, [](Host &host, int a, int b) { host.setProducts(a % 7, b); }},
    {"publish-bin", 3, false, true, [](Host &host, int a, int b) { host.publishBin(a % 6, b); }},
    {"drive", 3, false, true, [](Host &host, int a, int b) { replaceVehicle(host, a % 8, b % 3 != 0); }},
    {"touch-map", 4, false, true, [](Host &host, int a, int) { host.touchMap(a); }},
    {"set-trap", 20, false, false, [](Host &host, int a, int b) { host.setTrap(a, b); }},
    {"long-touch", 14, false, false, [](Host &host, int a, int) { host.longTouch(a); }},
    {"choose-product", 20, true, true, [](Host &host, int a, int) { host.touch("productButton", a % 6); }},
    {"apply-to-all", 12, true, true, [](Host &host, int, int) { host.touch("applyToAllBox", -1); }},
    {"zero-rate-shutoff", 16, true, true, [](Host &host, int, int) { host.touch("zeroRateShutoffBox", -1); }},
    {"type-look-ahead", 14, true, false, [](Host &host, int a, int) { host.type("lookAheadEdit", a); }},
    {"type-default-rate", 14, true, false, [](Host &host, int a, int) { host.type("defaultRateEdit", a); }},
    {"wait", 8, true, true, [](Host &host, int, int) { host.poll(); }},
    {"done", 5, true, true, [](Host &host, int, int) { host.touch("doneButton", -1); }},
    {"escape", 1, true, true, [](Host &host, int, int) { host.press(Qt::Key_Escape); }},
    {"delete-dialog", 1, true, true, [](Host &host, int, int) { host.deleteDialog(); }},
};

Step drawn(std::mt19937 &random, bool inDialog)
{
    int all = 0;
    for (const Action &action : actions)
        all += action.inDialog && !inDialog ? 0 : action.weight;
    int left = static_cast<int>(random() % static_cast<unsigned int>(all));
    const Action *action = actions;
    for (;; ++action) {
        left -= action->inDialog && !inDialog ? 0 : action->weight;
        if (left < 0)
            break;
    }
    const auto number = [&random] { return static_cast<int>(random() % 1000000U); };
    const int a = number();
    return {QString::fromLatin1(action->name), a, number()};
}

/// Actions by which the plug-in reads or writes much, and may walk into a trap.
const char *const walkIns[] = {"activate", "touch-map", "make-list", "fill-map", "long-touch", "wait"};

/// How a day begins: products, one to three maps, an options button.
Sequence morning(std::mt19937 &random)
{
    const auto number = [&random] { return static_cast<int>(random() % 1000000U); };
    Sequence steps{{"set-products", 1 + number() % 6, number()}, {"switch-units", number(), number()}};
    for (auto maps = random() % 3; maps < 3; ++maps)
        steps << Step{"publish-map", 0, number()};
    if (random() % 5 == 0)
        steps << Step{"protect-map", number(), number()};
    return steps << Step{"make-widget", 1, 0};
}

} // namespace

const Action *findAction(const QString &name)
{
    for (const Action &action : actions) {
        if (name == QLatin1String(action.name))
            return &action;
    }
    return nullptr;
}

const Action &intruder(int number)
{
    for (int i = 0;; ++i) {
        const Action &action = actions[static_cast<std::size_t>(i) % (sizeof(actions) / sizeof(Action))];
        if (action.mayIntrude && number-- == 0)
            return action;
    }
}

Sequence hostileSequence(unsigned int seed, int length)
{
    std::mt19937 random(seed);
    // Most days begin as days do.
    Sequence steps = random() % 8 == 0 ? Sequence() : morning(random);
    if (!steps.isEmpty())
        steps << Step{"make-list", 1, 1} << Step{"activate", static_cast<int>(random() % 3), 0};
    bool inDialog = false;
    while (steps.size() < length) {
        const Step step = drawn(random, inDialog);
        if (step.action == QLatin1String("long-touch"))
            inDialog = true;
        else if (step.action == QLatin1String("done") || step.action == QLatin1String("escape"))
            inDialog = false;
        steps.append(step);
        if (step.action == QLatin1String("set-trap"))
            steps << Step{walkIns[step.b % 6], step.b / 6, step.a};
    }
    return steps;
}

Sequence dialogSequence(unsigned int seed, int length)
{
    std::mt19937 random(seed);
    Sequence steps = morning(random);
    steps << Step{"long-touch", 0, 0};
    const QStringList own{"drive", "publish-bin", "switch-units", "set-mappings"};
    while (steps.size() < length) {
        const Step next = drawn(random, true);
        const Action &action = *findAction(next.action);
        if (action.inDialog ? action.weight > 5 : own.contains(next.action))
            steps.append(next);
    }
    steps << Step{random() % 4 == 0 ? "escape" : "done", 0, 0};
    return steps;
}
