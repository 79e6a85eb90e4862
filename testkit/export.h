#pragma once

#include <QtGlobal>

#ifdef ZEPLET_TEST_BUILD
#define ZEPLET_TEST_EXPORT Q_DECL_EXPORT
#else
#define ZEPLET_TEST_EXPORT Q_DECL_IMPORT
#endif
