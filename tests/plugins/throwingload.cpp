// Its static initialiser throws, while the linker opens the library.
#include <stdexcept>

static bool start()
{
    throw std::runtime_error("no camera on this machine");
}

[[maybe_unused]] static const bool started = start();
