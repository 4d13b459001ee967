#pragma once

#include "Framework/frameworkglobal.h"

#include <QMetaType>

/// Declares `TYPE` as a meta-type whose id the framework library hands out, so that every library of the process
/// sees one id and no plug-in registers the type itself. Use at global scope; the framework defines the function.
#define ORVIK_DECLARE_SHARED_METATYPE(TYPE)                                                                            \
    QT_BEGIN_NAMESPACE                                                                                                 \
    template <> struct QMetaTypeId<TYPE> {                                                                             \
        enum { Defined = 1 };                                                                                          \
        FRAMEWORK_EXPORT static int qt_metatype_id();                                                                  \
    };                                                                                                                 \
    QT_END_NAMESPACE
