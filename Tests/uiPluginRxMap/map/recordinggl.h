#pragma once

#include <QOpenGLFunctions>
#include <QStringList>

#include <functional>

/// Replaces entries of the current context's function table by functions that record the call and pass it on; restores
/// the table when it is destroyed. Only one may exist at a time.
class RecordingGl {
public:
    RecordingGl();
    ~RecordingGl();

    /// The calls in order, such as "glDrawArrays 4 0 6"; shaders are given by the type that they were created with.
    QStringList calls() const;
    /// Number of calls of one function.
    int count(const QString &function) const;
    void clear();
    /// Error codes that glGetError returns, one per call, before it gives its own again.
    void pend(const QList<unsigned int> &errors);
    /// Called for each call, after it is recorded and before it is passed on.
    void watch(std::function<void(const QString &)> watcher);
    /// Where the last call set the pointer of an attribute to.
    static const void *pointerOf(unsigned int attribute);

private:
    Q_DISABLE_COPY(RecordingGl)
};
