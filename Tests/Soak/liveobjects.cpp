#include "liveobjects.h"

#include <QAbstractEventDispatcher>
#include <QMetaMethod>
#include <QObject>
#include <QThread>

#include <mutex>
#include <private/qhooks_p.h>
#include <unordered_set>

namespace {

std::mutex mutex;

std::unordered_set<QObject *> &all()
{
    static auto *objects = new std::unordered_set<QObject *>;
    return *objects;
}

void enter(QObject *object)
{
    const std::lock_guard<std::mutex> guard(mutex);
    all().insert(object);
}

void leave(QObject *object)
{
    const std::lock_guard<std::mutex> guard(mutex);
    all().erase(object);
}

/// Sums up `ask` over the calling thread's objects.
template <typename Ask> int sum(Ask ask)
{
    const std::lock_guard<std::mutex> guard(mutex);
    int result = 0;
    for (const QObject *object : all()) {
        if (object->thread() == QThread::currentThread())
            result += ask(object);
    }
    return result;
}

class Opened : public QObject {
public:
    using QObject::receivers;
};

int connectionsOf(const QObject *object)
{
    int result = 0;
    const QMetaObject *meta = object->metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            // In the form that the macro SIGNAL() gives it.
            result += (object->*&Opened::receivers)('2' + method.methodSignature());
    }
    return result;
}

} // namespace

void LiveObjects::watch()
{
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&enter);
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&leave);
}

int LiveObjects::count()
{
    return sum([](const QObject *) { return 1; });
}

int LiveObjects::timers()
{
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    return sum([dispatcher](const QObject *object) {
        return dispatcher->registeredTimers(const_cast<QObject *>(object)).size();
    });
}

int LiveObjects::connections()
{
    return sum(connectionsOf);
}
