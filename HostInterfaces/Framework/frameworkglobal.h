#pragma once

#include <QtGlobal>

#if defined(FRAMEWORK_LIBRARY)
#define FRAMEWORK_EXPORT Q_DECL_EXPORT
#else
#define FRAMEWORK_EXPORT Q_DECL_IMPORT
#endif
