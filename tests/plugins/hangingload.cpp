// Its static initialiser never returns.
#include <unistd.h>

[[maybe_unused]] static const bool started = [] {
    for (;;)
        pause();
    return true;
}();
