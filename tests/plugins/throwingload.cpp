// Its static initialiser throws, while the linker opens the library.
#include <stdexcept>

namespace
{

bool start()
{
    throw std::runtime_error("thrown while the library was opened");
}

[[maybe_unused]] const bool started = start();

} // namespace
