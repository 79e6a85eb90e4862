// A library that nobody tagged as a plugin.
[[maybe_unused]] static const int nothing = 0;
