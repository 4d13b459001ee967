#pragma once

#include <QMetaObject>
#include <QObject>

#include <type_traits>

/// Runs `function` on the thread of `context` (the user-interface thread) and returns what it returns. The caller, on
/// another thread, waits. It runs from whichever event loop turns there, also from that of an open dialog. (An event
/// loop that starts while calls are posted already may sleep over them until something wakes it; showing a dialog
/// does.) A call whose `context` is deleted before it could run is dropped and returns an empty value.
template <typename Function> auto runOnUiThread(QObject *context, Function function)
{
    using Value = decltype(function());
    if constexpr (std::is_void_v<Value>) {
        QMetaObject::invokeMethod(context, function, Qt::BlockingQueuedConnection);
    } else {
        Value result{};
        QMetaObject::invokeMethod(
            context, [&] { result = function(); }, Qt::BlockingQueuedConnection);
        return result;
    }
}
