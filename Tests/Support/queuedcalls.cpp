// What the thread sanitizer cannot see, since Qt is not built with it: a call that is queued for another thread comes
// after what the queuing thread did before, and a call that is waited for comes before what that thread does next.
// Linked into the tests of builds with RXMAP_THREADS, in front of Qt's own function, which it calls.

#include <QMetaObject>
#include <QObject>
#include <QThread>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

extern "C" {
void AnnotateIgnoreWritesBegin(const char *file, int line);
void AnnotateIgnoreWritesEnd(const char *file, int line);
}

namespace {

/// Carries the queued call; both threads use its address to name it.
class OrderedCall : public QtPrivate::QSlotObjectBase {
public:
    explicit OrderedCall(QtPrivate::QSlotObjectBase *queued)
        : QSlotObjectBase(&run)
        , queued(queued)
    {
        __tsan_release(this);
    }

private:
    static void run(int what, QSlotObjectBase *base, QObject *receiver, void **arguments, bool *isEqual)
    {
        auto *self = static_cast<OrderedCall *>(base);
        __tsan_acquire(self);
        if (what == Call) {
            self->queued->call(receiver, arguments);
            __tsan_release(self);
        } else if (what == Destroy) {
            self->queued->destroyIfLastRef();
            delete self;
        } else if (isEqual != nullptr) {
            *isEqual = false;
        }
    }

    QSlotObjectBase *queued;
};

/// The sanitizer looks away while a call is put into another thread's list of events, since it does not see Qt lock the
/// list.
class UnseenPosting {
public:
    explicit UnseenPosting(const QObject &receiver)
        : isToOther(receiver.thread() != QThread::currentThread())
    {
        if (isToOther)
            AnnotateIgnoreWritesBegin(__FILE__, __LINE__);
    }
    ~UnseenPosting()
    {
        if (isToOther)
            AnnotateIgnoreWritesEnd(__FILE__, __LINE__);
    }
    UnseenPosting(const UnseenPosting &) = delete;
    UnseenPosting &operator=(const UnseenPosting &) = delete;

private:
    const bool isToOther;
};

using Invoke = bool (*)(QObject *, QtPrivate::QSlotObjectBase *, Qt::ConnectionType, void *);

Invoke qtsOwn()
{
    static const auto own = reinterpret_cast<Invoke>(
        dlsym(RTLD_NEXT,
              "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv"));
    return own;
}

} // namespace

bool QMetaObject::invokeMethodImpl(QObject *object, QtPrivate::QSlotObjectBase *slot, Qt::ConnectionType type,
                                   void *result)
{
    auto *ordered = new OrderedCall(slot);
    ordered->ref();
    const auto post = [&] {
        const UnseenPosting unseen(*object);
        return qtsOwn()(object, ordered, type, result);
    };
    const bool isDone = post();
    if (type == Qt::BlockingQueuedConnection)
        __tsan_acquire(ordered);
    ordered->destroyIfLastRef();
    return isDone;
}
