#include "displaystates.h"

#include "fieldview.h"
#include "guidancepage.h"
#include "machine.h"
#include "openwindow.h"
#include "simulation.h"
#include "terminalwindow.h"

#include <QAbstractButton>
#include <QtTest>

namespace {

constexpr int longest = 5000; // ms

QAbstractButton *seen(const Terminal &terminal, const QString &name)
{
    const QList<QAbstractButton *> all = terminal.window()->findChildren<QAbstractButton *>(name);
    for (QAbstractButton *button : all) {
        if (button->isVisible())
            return button;
    }
    return nullptr;
}

} // namespace

DisplayStates::DisplayStates(TerminalHost &host)
    : terminal(host.terminal())
{
}

QStringList DisplayStates::names()
{
    return {QStringLiteral("no map"),     QStringLiteral("map"),      QStringLiteral("driving"),
            QStringLiteral("by hand"),    QStringLiteral("files"),    QStringLiteral("preview"),
            QStringLiteral("product"),    QStringLiteral("unit"),     QStringLiteral("message"),
            QStringLiteral("findings"),   QStringLiteral("greeting"), QStringLiteral("opened"),
            QStringLiteral("unit wanted")};
}

bool DisplayStates::open(const char *file, const char *column)
{
    const LoadReport report =
        terminal.open({{TerminalHost::fixture(QLatin1String(file))}, {QLatin1String(column)}}).first();
    terminal.touch(report.bounds.center());
    return report.isOk();
}

bool DisplayStates::touch(const QString &control)
{
    if (!QTest::qWaitFor([&] { return seen(terminal, control) != nullptr; }, longest))
        return false;
    seen(terminal, control)->click();
    return true;
}

bool DisplayStates::drive(bool isByHand)
{
    terminal.simulation()->setTimeFactor(0.0);
    const bool isDriven = openMap() && touch(QStringLiteral("drive"))
        && touch(isByHand ? QStringLiteral("driveByHand") : QStringLiteral("driveStart"));
    terminal.simulation()->run(5.0);
    // The panel shows it a moment later.
    QTest::qWait(150);
    return isDriven;
}

bool DisplayStates::openMap()
{
    return open("three-zones.geojson", "SEED_K_HA");
}

bool DisplayStates::showPreview(const char *file)
{
    terminal.openWindow()->preview({TerminalHost::fixture(QLatin1String(file))});
    return QTest::qWaitFor([this] { return seen(terminal, QStringLiteral("openAccept")) != nullptr; }, longest);
}

bool DisplayStates::bring(const QString &name)
{
    if (name == QLatin1String("map"))
        return openMap();
    if (name == QLatin1String("driving") || name == QLatin1String("by hand"))
        return drive(name == QLatin1String("by hand"));
    if (name == QLatin1String("files"))
        return touch(QStringLiteral("openButton")) && touch(QStringLiteral("placeRoot"));
    if (name == QLatin1String("preview"))
        return showPreview();
    if (name == QLatin1String("unit wanted"))
        return showPreview("two-strips.geojson");
    if (name == QLatin1String("opened"))
        return openMap() && touch(QStringLiteral("openButton")) && touch(QStringLiteral("placeOpen"));
    if (name == QLatin1String("product"))
        return showPreview() && touch(QStringLiteral("columnRow0Product"));
    if (name == QLatin1String("unit"))
        return showPreview() && touch(QStringLiteral("columnRow0Unit"));
    if (name == QLatin1String("findings"))
        return open("overlap.geojson", "rate") && touch(QStringLiteral("findingsButton"));
    if (name == QLatin1String("message"))
        terminal.openWindow()->refuse(QStringLiteral("/no/such/file.shp: no such file"));
    if (name == QLatin1String("greeting"))
        terminal.greet();
    return true;
}

QList<QWidget *> DisplayStates::pieces() const
{
    QList<QWidget *> own;
    const QList<QWidget *> parts = terminal.window()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *part : parts) {
        if (part->isVisible() && part != terminal.window()->fieldView() && part != terminal.window()->guidancePage())
            own.append(part);
    }
    return own;
}
