#include "scriptcontrol.h"

#include "controlprobe.h"
#include "guicall.h"
#include "holdwatch.h"

#include <QElapsedTimer>
#include <QJSEngine>
#include <QScopedPointer>
#include <QThread>

namespace {

// Longer than any control takes to tell a long touch from a short one, milliseconds.
constexpr int longestHold = 2500;
constexpr int holdPoll = 20;

} // namespace

ScriptControl::ScriptControl(const QString &name, QObject *gui, QObject *parent)
    : QObject(parent)
    , name(name)
    , gui(gui)
{
}

template <typename Function> auto ScriptControl::ask(Function function) const
{
    return callOnGui(gui, [this, &function] {
        if (!control)
            control = ControlProbe::find(name);
        return function(control.data());
    });
}

QString ScriptControl::text() const
{
    return ask([](const QObject *object) { return ControlProbe::text(object); });
}

int ScriptControl::image() const
{
    return ask([](const QObject *object) { return ControlProbe::image(object); });
}

bool ScriptControl::isVisible() const
{
    return ask([](const QObject *object) { return ControlProbe::isVisible(object); });
}

bool ScriptControl::isEnabled() const
{
    return ask([](const QObject *object) { return ControlProbe::isEnabled(object); });
}

int ScriptControl::x() const
{
    return ask([](const QObject *object) { return ControlProbe::geometry(object).x(); });
}

int ScriptControl::y() const
{
    return ask([](const QObject *object) { return ControlProbe::geometry(object).y(); });
}

int ScriptControl::width() const
{
    return ask([](const QObject *object) { return ControlProbe::geometry(object).width(); });
}

int ScriptControl::height() const
{
    return ask([](const QObject *object) { return ControlProbe::geometry(object).height(); });
}

void ScriptControl::settle() const
{
    // Posted events keep their order: when this comes back, those before it have been delivered, or the last of them
    // has opened a dialog whose event loop runs now.
    callOnGui(gui, [] { return true; });
}

bool ScriptControl::tap()
{
    const bool isThere = ask([](const QObject *object) {
        const ControlProbe::Spot spot = ControlProbe::middle(object);
        ControlProbe::press(spot);
        ControlProbe::release(spot);
        return !spot.window.isNull();
    });
    if (isThere)
        settle();
    else
        qjsEngine(this)->throwError(QStringLiteral("control \"%1\" is not on the display").arg(name));
    return isThere;
}

void ScriptControl::touch()
{
    tap();
    Q_EMIT acted();
}

void ScriptControl::longTouch()
{
    QScopedPointer<HoldWatch, QScopedPointerDeleteLater> watch;
    const ControlProbe::Spot spot = ask([&watch](QObject *object) {
        watch.reset(new HoldWatch(object));
        ControlProbe::press(ControlProbe::middle(object));
        return ControlProbe::middle(object);
    });
    if (spot.window.isNull()) {
        qjsEngine(this)->throwError(QStringLiteral("control \"%1\" is not on the display").arg(name));
        return;
    }
    QElapsedTimer held;
    held.start();
    while (held.elapsed() < longestHold && !callOnGui(gui, [&watch] { return watch->isOver(); }))
        QThread::msleep(holdPoll);
    callOnGui(gui, [&spot] {
        ControlProbe::release(spot);
        return true;
    });
    settle();
    Q_EMIT acted();
}

void ScriptControl::enter(const QString &text)
{
    if (!tap())
        return;
    const bool isTyped = ask([&text](const QObject *object) {
        const bool takesKeys = ControlProbe::hasKeyboard(object);
        if (takesKeys)
            ControlProbe::type(object, text);
        return takesKeys;
    });
    if (isTyped)
        settle();
    Q_EMIT acted();
}
