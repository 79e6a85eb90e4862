#!/usr/bin/env bash
# Installs a build into an empty prefix and uses it as an author and an integrator do: its panel loads the
# examples, two of them build alone against it and pass their tests, a plugin is made and packed, and the
# library builds against the installed host. script/packages --check does so with all templates and
# examples.
# Further words go to CMake where a plugin is configured. ZEPLET_EMULATOR starts what was built.
set -euo pipefail
build=${1:?usage: install.sh BUILD_DIRECTORY [OPTION ...]}
shift
emulator=${ZEPLET_EMULATOR:-}
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export CCACHE_BASEDIR=$work CCACHE_NOHASHDIR=1 # each run has another directory
options=(-G Ninja -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_BUILD_TYPE=Debug
    -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DBUILD_TESTING=OFF
    -DCMAKE_PREFIX_PATH="$work/prefix" "$@")

cmake --install "$build" --prefix "$work/prefix" >/dev/null
if find "$work/prefix" -name '*_p.h' | grep .; then
    echo "private headers were installed" >&2
    exit 1
fi

examples=$(cd "$root/examples" && ls -d */ | tr -d /)
if [ "$(ls "$work/prefix/lib/zeplet/plugins")" != "$(sed 's/$/.so/' <<<"$examples")" ]; then
    echo "an installed panel is to find the examples and nothing else:" >&2
    ls "$work/prefix/lib/zeplet/plugins" >&2
    exit 1
fi

# An installed panel loads them all, by itself; otherwise one loads just those in the directory.
show() { # show EXAMPLES [OPTION ...]
    local example expected=$1
    shift
    rm -rf "$work/run"
    QT_QPA_PLATFORM=offscreen $emulator "$work/prefix/bin/zeplet-panel" --runtime "$work/run" --for 0.5 "$@"
    for example in $expected; do
        grep "'$example' init" "$work"/run/log/zeplet_*.log
    done
}
show "$examples"

# Copies outside the project prove that each needs nothing but the installation, which it finds: one
# example with next to nothing, one with all that there is.
mkdir "$work/alone"
cp -r "$root/examples/status" "$root/examples/welding" "$work/alone"
cat >"$work/alone/CMakeLists.txt" <<'EOF'
cmake_minimum_required(VERSION 3.25)
project(alone LANGUAGES CXX)
include(CTest)
add_subdirectory(status)
add_subdirectory(welding)
EOF
tested=$([ -z "$emulator" ] && echo ON || echo OFF)
cmake -S "$work/alone" -B "$work/alone/build" "${options[@]}" -DBUILD_TESTING="$tested" >/dev/null
cmake --build "$work/alone/build"
[ "$tested" = OFF ] || ctest --test-dir "$work/alone/build" -j2 --output-on-failure --no-tests=error
show "status welding" --plugins "$work/alone/build/plugins"

# A plugin of a template is packed, and the panel loads it from what its package holds.
pack_template() {
    export PATH=$work/prefix/bin:$PATH CMAKE_CXX_COMPILER_LAUNCHER=ccache
    cd "$work" && zeplet new made && cd made && zeplet pack --arch "$(dpkg --print-architecture)" &&
        dpkg-deb -x build/packages/*.deb "$work/packed" &&
        zeplet list --plugins "$work"/packed/usr/lib/*/zeplet/plugins | tee "$work/list.txt" &&
        grep -q "^made .*running" "$work/list.txt"
}
[ -n "$emulator" ] || (pack_template)

# A name that a panel would refuse is refused when the plugin is configured.
mkdir "$work/named"
cat >"$work/named/CMakeLists.txt" <<'EOF'
cmake_minimum_required(VERSION 3.25)
project(named LANGUAGES CXX)
find_package(Zeplet REQUIRED)
file(TOUCH ${CMAKE_CURRENT_BINARY_DIR}/plugin.cpp)
zeplet_add_plugin(NAME "${name}" SOURCES ${CMAKE_CURRENT_BINARY_DIR}/plugin.cpp)
EOF
for name in good-Name_1 'bad name' ../up -lead "$(printf 'a%.0s' {1..65})"; do
    expected=refused
    [ "$name" != good-Name_1 ] || expected=accepted
    found=accepted
    cmake -S "$work/named" -B "$work/named/build" "${options[@]}" -Dname="$name" >"$work/named.txt" \
        2>&1 || found=refused
    [ $found = $expected ] || { echo "the plugin name '$name' was $found" >&2; exit 1; }
done

cmake -S "$root" -B "$work/library" "${options[@]}" -DZEPLET_HOST=ZepletHost >/dev/null
cmake --build "$work/library"
if [ -d "$work/library/host" ]; then
    echo "the library's build against another host also built the reference host" >&2
    exit 1
fi

# What the two builds made must load with every symbol resolved; ldd only knows this machine's kind.
[ -z "$emulator" ] || exit 0
export LD_LIBRARY_PATH=$work/prefix/lib
for library in $(find "$work/alone/build" "$work/library" -name '*.so'); do
    echo "checking $library"
    if ldd -r "$library" | grep -E 'not found|undefined symbol'; then
        exit 1
    fi
done
