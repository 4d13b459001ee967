#pragma once

#include <QtGlobal>

#if defined(BEPLUGINRXMAP_LIBRARY)
#define BEPLUGINRXMAP_EXPORT Q_DECL_EXPORT
#else
#define BEPLUGINRXMAP_EXPORT Q_DECL_IMPORT
#endif
