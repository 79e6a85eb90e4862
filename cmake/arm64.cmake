# Builds for 64-bit Arm with Debian's cross compiler and the arm64 packages of the libraries, and runs
# what was built with qemu's user emulation:
#     cmake -DCMAKE_TOOLCHAIN_FILE=.../arm64.cmake ...
# Needs crossbuild-essential-arm64 and, for plugins, libzeplet-dev:arm64; to run tests also
# qemu-user-static and python3.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(PKG_CONFIG_EXECUTABLE aarch64-linux-gnu-pkg-config)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/arm64run)
