#!/usr/bin/env bash
# Builds and installs libtintvert over a site's own companions, which differ visibly from ours, and runs one program
# with each set.
#   site_companions.sh BUILD CC CXX
. "$(dirname "$0")/expect.sh"
build=$1 cc=$2 cxx=$3
site=$project/tests/install/site
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# prints TEXT PREFIX: what the program prints, built against that tree by find_package.
prints() {
  mkdir -p "$work/program"
  cat >"$work/program/CMakeLists.txt" <<END
cmake_minimum_required(VERSION 3.25)
project(calls LANGUAGES C CXX)
find_package(tintvert 1 REQUIRED)
add_executable(calls $site/calls.c)
target_link_libraries(calls PRIVATE tintvert::tintvert)
END
  cmake -S "$work/program" -B "$work/program/build" --fresh -DCMAKE_PREFIX_PATH="$2" \
    -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" >/dev/null
  cmake --build "$work/program/build" >/dev/null || fail "the program does not build against $2"
  expect "$1" "$work/program/build/calls"
}

mkdir -p "$work/site/lib"
for library in zkutil kmrutil ycbcr; do
  "$cc" -std=c11 -shared -fPIC -I"$project/companions/$library" "$site/$library.c" -Wl,-soname,lib$library.so.7 \
    -o "$work/site/lib/lib$library.so.7"
  ln -s lib$library.so.7 "$work/site/lib/lib$library.so"
done

options=(-DCMAKE_BUILD_TYPE=Release -DTINTVERT_TOOL=OFF -DTINTVERT_COMPANIONS=SYSTEM -DCMAKE_C_COMPILER="$cc"
  -DCMAKE_CXX_COMPILER="$cxx")
refuse cmake -S "$project" -B "$work/build" "${options[@]}"
refuse cmake -S "$project" -B "$work/build" --fresh -DTINTVERT_TOOL=OFF -DTINTVERT_COMPANIONS=MINE
cmake -S "$project" -B "$work/build" --fresh "${options[@]}" -DCMAKE_PREFIX_PATH="$work/site" >/dev/null
cmake --build "$work/build" >/dev/null
cmake --install "$work/build" --prefix "$work/theirs" >/dev/null
same '' 'what of our companions is installed' "$(find "$work/theirs" -name 'libzk*' -o -name 'libkm*' -o -name 'libyc*')"
same $'libkmrutil.so.7\nlibycbcr.so.7\nlibzkutil.so.7' 'what libtintvert needs of the site' \
  "$(readelf -d "$work/theirs/lib/libtintvert.so" | grep -oE 'lib(zkutil|kmrutil|ycbcr)\.so\.[0-9]+' | sort)"

prints 'site CPUFeatureFlags
site ZKAlloc 63
site ZKFree
site GetMatrixBySize 2 1
site cycbcr_uyvy_to_rgb32 2 1 8 4 0
B 225 G 16 R 0' "$work/theirs"

# Checked calls link the site's libzkutil by its place.
read -ra flags <<<"$(PKG_CONFIG_PATH=$work/theirs/lib/pkgconfig pkg-config --cflags --libs tintvert-checked)"
"$cc" -std=c11 "$project/examples/checked_in_c.c" -o "$work/checked" "${flags[@]}" -Wl,-rpath,"$work/theirs/lib:$work/site/lib"
expect 'dst: 95 bytes, needs 96 (bytes 0-95)' "$work/checked"

cmake --install "$build" --prefix "$work/ours" >/dev/null
prints 'B 24 G 195 R 13' "$work/ours"
echo 'site_companions: each set serves its own installation'
