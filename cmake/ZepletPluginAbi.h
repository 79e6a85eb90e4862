#pragma once

// What a library and the program that opens it have to agree on besides the versions: the
// compiler's interface and the architecture. Both sides take these words from here, so that they
// compare equal.

#include <cstddef> // makes the standard library name itself

#if defined(_LIBCPP_VERSION)
#define ZEPLET_PLUGIN_COMPILER "libc++"
#elif defined(_GLIBCXX_USE_CXX11_ABI) && _GLIBCXX_USE_CXX11_ABI
#define ZEPLET_PLUGIN_COMPILER "libstdc++-cxx11"
#else
#define ZEPLET_PLUGIN_COMPILER "libstdc++"
#endif

#if defined(__x86_64__)
#define ZEPLET_PLUGIN_ARCHITECTURE "x86_64"
#elif defined(__aarch64__)
#define ZEPLET_PLUGIN_ARCHITECTURE "aarch64"
#elif defined(__arm__)
#define ZEPLET_PLUGIN_ARCHITECTURE "arm"
#elif defined(__i386__)
#define ZEPLET_PLUGIN_ARCHITECTURE "i386"
#elif defined(__riscv) && __riscv_xlen == 64
#define ZEPLET_PLUGIN_ARCHITECTURE "riscv64"
#else
#define ZEPLET_PLUGIN_ARCHITECTURE "unknown"
#endif
