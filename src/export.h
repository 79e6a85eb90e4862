#pragma once

#include <QtGlobal>

#if defined(ZEPLET_BUILD)
#define ZEPLET_EXPORT Q_DECL_EXPORT
#else
#define ZEPLET_EXPORT Q_DECL_IMPORT
#endif
