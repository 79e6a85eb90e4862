// A library that nobody tagged as a plugin.
namespace
{

[[maybe_unused]] const int nothing = 0;

} // namespace
