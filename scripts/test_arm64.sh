#!/bin/sh
# The core and its tests of pixels, regions, filters, painting and colours for arm64, cross-compiled and run by qemu. The root with
# arm64's libraries, 800 MB, stays in build/arm64-root. Skipped where a tool is missing.
set -eu
cd "$(dirname "$0")/.."
for tool in aarch64-linux-gnu-g++ qemu-aarch64-static mmdebstrap; do
    command -v "$tool" >/dev/null || { echo "make test-arm64 is skipped: there is no $tool (packages g++-aarch64-linux-gnu, qemu-user-static, mmdebstrap)"; exit 0; }
done
SYSROOT=$PWD/build/arm64-root
export SYSROOT QT_QPA_PLATFORM=offscreen
if [ ! -e "$SYSROOT/usr/lib/aarch64-linux-gnu/cmake/GTest" ]; then
    rm -rf "$SYSROOT"
    libraries=$(grep -v '^#' packages.txt | tr ' ' '\n' | grep -E -- '-dev$|^libqt6svg6$' | paste -sd,)
    mmdebstrap --variant=extract --arch=arm64 --include="$libraries,libstdc++-12-dev" \
        "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$SYSROOT"
fi
cmake -G Ninja -B build/arm64 -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE=-O2 -DCMAKE_TOOLCHAIN_FILE=cmake/arm64.cmake >/dev/null
rooms="pixels region reduce paint engine"
# shellcheck disable=SC2046
cmake --build build/arm64 --target $(printf 'test_%s ' $rooms)
for room in $rooms; do qemu-aarch64-static -L "$SYSROOT" "build/arm64/bin/test_$room" --gtest_brief=1; done
