#include "scriptcontrol.h"

#include "longtouchwatch.h"
#include "runonuithread.h"
#include "uidriver.h"

#include <QElapsedTimer>
#include <QJSEngine>
#include <QScopedPointer>
#include <QThread>

namespace {

// Longer than any control takes to tell a long touch from a short one, milliseconds.
constexpr int maxHold = 2500;
constexpr int holdPoll = 20;

} // namespace

ScriptControl::ScriptControl(const QString &givenName, QObject *givenGui, QObject *parent)
    : QObject(parent)
    , name(givenName)
    , gui(givenGui)
{
}

template <typename Function> auto ScriptControl::ask(Function function) const
{
    return runOnUiThread(gui, [this, &function] {
        if (!control)
            control = UiDriver::find(name);
        return function(control.data());
    });
}

QString ScriptControl::text() const
{
    return ask([](const QObject *object) { return UiDriver::text(object); });
}

int ScriptControl::image() const
{
    return ask([](const QObject *object) { return UiDriver::image(object); });
}

bool ScriptControl::isVisible() const
{
    return ask([](const QObject *object) { return UiDriver::isVisible(object); });
}

bool ScriptControl::isEnabled() const
{
    return ask([](const QObject *object) { return UiDriver::isEnabled(object); });
}

int ScriptControl::x() const
{
    return ask([](const QObject *object) { return UiDriver::geometry(object).x(); });
}

int ScriptControl::y() const
{
    return ask([](const QObject *object) { return UiDriver::geometry(object).y(); });
}

int ScriptControl::width() const
{
    return ask([](const QObject *object) { return UiDriver::geometry(object).width(); });
}

int ScriptControl::height() const
{
    return ask([](const QObject *object) { return UiDriver::geometry(object).height(); });
}

void ScriptControl::settle() const
{
    // Posted events keep their order: when this comes back, those before it have been delivered, or the last of them
    // has opened a dialog whose event loop runs now.
    runOnUiThread(gui, [] { return true; });
}

bool ScriptControl::tap()
{
    const bool isThere = ask([](const QObject *object) {
        const UiDriver::Spot spot = UiDriver::middle(object);
        UiDriver::press(spot);
        UiDriver::release(spot);
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
    QScopedPointer<LongTouchWatch, QScopedPointerDeleteLater> watch;
    const UiDriver::Spot spot = ask([&watch](QObject *object) {
        watch.reset(new LongTouchWatch(object));
        UiDriver::press(UiDriver::middle(object));
        return UiDriver::middle(object);
    });
    if (spot.window.isNull()) {
        qjsEngine(this)->throwError(QStringLiteral("control \"%1\" is not on the display").arg(name));
        return;
    }
    QElapsedTimer held;
    held.start();
    while (held.elapsed() < maxHold && !runOnUiThread(gui, [&watch] { return watch->isOver(); }))
        QThread::msleep(holdPoll);
    runOnUiThread(gui, [&spot] {
        UiDriver::release(spot);
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
        const bool takesKeys = UiDriver::hasKeyboard(object);
        if (takesKeys)
            UiDriver::type(object, text);
        return takesKeys;
    });
    if (isTyped)
        settle();
    Q_EMIT acted();
}
