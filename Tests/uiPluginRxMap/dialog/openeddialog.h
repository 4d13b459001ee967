#pragma once

#include "dialoghost.h"
#include "dialogprobe.h"

/// A dialog, and what a test sees of it.
struct Opened {
    explicit Opened(DialogHost &host)
        : dialog(&host.broker, host.images, nullptr)
        , probe(dialog)
    {
    }

    RxMapWidgetDialog01 dialog;
    DialogProbe probe;
};
