#pragma once

#include <QMetaObject>
#include <QObject>

#include <optional>

/// Runs `function` on the thread of `context` (the user-interface thread) and returns what it returns. The caller, on
/// another thread, waits. It runs from whichever event loop turns there, also from that of an open dialog. (An event
/// loop that starts while calls are posted already may sleep over them until something wakes it; showing a dialog
/// does.)
template <typename Function> auto callOnGui(QObject *context, Function function)
{
    std::optional<decltype(function())> result;
    QMetaObject::invokeMethod(
        context, [&] { result.emplace(function()); }, Qt::BlockingQueuedConnection);
    return *result;
}
