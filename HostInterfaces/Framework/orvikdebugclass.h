#pragma once

#include "Framework/frameworkglobal.h"

#include <QScopedPointer>

class OrvikDebugClassPrivate;

/// The process-wide debug output. Whoever writes several lines that belong together holds its lock meanwhile.
class FRAMEWORK_EXPORT ORVIK_DEBUG_CLASS {
public:
    /// The one object; made on first use, never deleted.
    static ORVIK_DEBUG_CLASS *init();

    void lock();
    void unlock();

private:
    ORVIK_DEBUG_CLASS();
    ~ORVIK_DEBUG_CLASS();
    Q_DISABLE_COPY(ORVIK_DEBUG_CLASS)

    QScopedPointer<OrvikDebugClassPrivate> d;
};
