#pragma once

#include <QOpenGLFunctions>
#include <QStringList>

#include <functional>

/// Replaces entries of the current context's function table by ones that record the call and hand it on; puts the
/// table back when it goes. One at a time.
class RecordingGl {
public:
    RecordingGl();
    ~RecordingGl();

    /// Calls in order, such as "glDrawArrays 4 0 6"; shaders by the type that they were created with.
    QStringList calls() const;
    /// Calls of one function.
    int count(const QString &function) const;
    void clear();
    /// Codes that glGetError answers with, one per call, before it answers for itself.
    void pend(const QList<unsigned int> &errors);
    /// Called with each call, once it is recorded and before it is handed on.
    void watch(std::function<void(const QString &)> watcher);
    /// Where the last call set the pointer of an attribute.
    static const void *pointerOf(unsigned int attribute);

private:
    Q_DISABLE_COPY(RecordingGl)
};
