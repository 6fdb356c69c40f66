#!/usr/bin/env bash
# Installs the build, builds the examples against it outside of the project, by find_package and by pkg-config,
# and runs them; moves the installed tree and does so again.
#   outside.sh BUILD CC CXX
. "$(dirname "$0")/expect.sh"
build=$1 cc=$2 cxx=$3
# Without optimization some of the flags have no effect.
hardened=(--hardened)
grep -qE '^CMAKE_BUILD_TYPE:[A-Z]+=(Debug)?$' "$build/CMakeCache.txt" && hardened=()
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# run_all PROGRAMS OWN: the examples as built in folder PROGRAMS, with the site's own libkmrutil in folder OWN.
run_all() {
  expect '99 81 211 81' "$1/readme"
  expect '4 slices of 270 lines: the bytes of one call' "$1/slices"
  expect 'B 18 G 174 R 7' "$1/green"
  expect 'B 20 G 168 R 0' env LD_LIBRARY_PATH="$2" "$1/green"
  expect 'done
src: 2457360 bytes, needs 2488278 (bytes 0-2488277)
tntvt_v210_rgb24: a `scale` of 0 divides by zero' "$1/checked"
  expect 'dst: 95 bytes, needs 96 (bytes 0-95)' "$1/checked_in_c"

  # The picture's header is 12 bytes, a bar 12 pixels: one pixel from the middle of each bar.
  "$1/bars" 96 2 >"$work/bars.v210"
  same 512 'the size of two lines of 96 pixels' "$(stat -c %s "$work/bars.v210")"
  "$1/v210_to_ppm" 96 2 <"$work/bars.v210" >"$work/bars.ppm"
  same $'P6\n96 2\n255' 'the header of bars.ppm' "$(head -n 3 "$work/bars.ppm")"
  same $'254 254 254\n254 255 0\n0 254 252\n0 254 0\n253 0 254\n252 0 0\n0 0 251\n0 0 0' 'the first line of bars.ppm' \
    "$(tail -c +31 "$work/bars.ppm" | od -An -v -tu1 -w36 | awk 'NR <= 8 { print $1, $2, $3 }')"
  refuse "$1/v210_to_ppm" 96 3 <"$work/bars.v210"
}

by_find_package() {
  rm -rf "$work/cmake"
  cmake -S "$project/examples" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$1" -DCMAKE_C_COMPILER="$cc" \
    -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF >/dev/null
  cmake --build "$work/cmake" >"$work/cmake.txt" || fail "find_package: $(cat "$work/cmake.txt")"
  "$project/tests/install/elf.sh" "$work"/cmake/{readme,bars,v210_to_ppm,slices,green,checked,checked_in_c} \
    "$work/cmake/own/libkmrutil.so" || fail 'a RUNPATH of the examples'
  run_all "$work/cmake" "$work/cmake/own"
}

by_pkg_config() {
  local pc libdir name
  pc=$(find "$1" -name tintvert.pc)
  export PKG_CONFIG_LIBDIR=${pc%/*}
  libdir=$(pkg-config --variable=libdir tintvert)
  rm -rf "$work/pc"
  mkdir -p "$work/pc/own"
  local warnings=(-Wall -Wextra -Wpedantic -Werror)
  local flags checked_flags
  read -ra flags <<<"$(pkg-config --cflags --libs tintvert) -Wl,-rpath,$libdir"
  read -ra checked_flags <<<"$(pkg-config --cflags --libs tintvert-checked) -Wl,-rpath,$libdir"
  for name in readme bars slices; do
    "$cxx" -std=c++20 "${warnings[@]}" "$project/examples/$name.cpp" -o "$work/pc/$name" "${flags[@]}" -pthread
  done
  for name in v210_to_ppm own_companion/green; do
    "$cc" -std=c11 "${warnings[@]}" "$project/examples/$name.c" -o "$work/pc/${name##*/}" "${flags[@]}"
  done
  "$cxx" -std=c++20 "${warnings[@]}" "$project/examples/checked.cpp" -o "$work/pc/checked" "${checked_flags[@]}"
  "$cc" -std=c11 "${warnings[@]}" "$project/examples/checked_in_c.c" -o "$work/pc/checked_in_c" "${checked_flags[@]}"
  "$cc" -std=c11 -shared -fPIC "$project/examples/own_companion/kmrutil.c" -Wl,-soname,libkmrutil.so.1 \
    -o "$work/pc/own/libkmrutil.so.1" "${flags[0]}"
  run_all "$work/pc" "$work/pc/own"
}

# The lines of docs/installing.md, with the README's program as app.cpp.
by_the_docs() {
  local fence='^```'
  rm -rf "$work/docs"
  mkdir "$work/docs"
  cp "$project/examples/readme.cpp" "$work/docs/app.cpp"
  sed -n "/${fence}cmake/,/$fence\$/{/$fence/!p}" "$project/docs/installing.md" >"$work/docs/CMakeLists.txt"
  cmake -S "$work/docs" -B "$work/docs/build" -DCMAKE_PREFIX_PATH="$1" -DCMAKE_CXX_COMPILER="$cxx" >/dev/null
  cmake --build "$work/docs/build" >/dev/null
  expect '99 81 211 81' "$work/docs/build/app"
  sed -n "/^By pkg-config/,/$fence\$/{/^By\|$fence/!p}" "$project/docs/installing.md" |
    sed "s|/opt/tintvert|$1|g; s|g++|$cxx|" >"$work/docs/by_pkg_config"
  (cd "$work/docs" && bash -e ./by_pkg_config)
  expect '99 81 211 81' "$work/docs/app"
}

# Another major version is refused, in both ways.
other_versions() {
  mkdir -p "$work/version"
  echo 'cmake_minimum_required(VERSION 3.25)
project(version NONE)
find_package(tintvert ${wanted} REQUIRED CONFIG)' >"$work/version/CMakeLists.txt"
  local ask=(cmake -S "$work/version" -B "$work/version/build" --fresh -DCMAKE_PREFIX_PATH="$1")
  "${ask[@]}" -Dwanted=1.0 >/dev/null || fail 'find_package(tintvert 1.0) finds nothing'
  refuse "${ask[@]}" -Dwanted=2
  refuse "${ask[@]}" -Dwanted=1.99
  pkg-config --exists 'tintvert >= 1.0.0' || fail 'pkg-config sees another version'
  refuse pkg-config --exists 'tintvert >= 2'
}

# What lies in the tree TREE, and that nothing in it knows where it was built or installed.
looks() {
  local library lib
  lib=$(dirname "$(find "$1" -name libtintvert.so)")
  for library in tintvert zkutil kmrutil ycbcr; do
    same "lib$library.so.1" "where lib$library.so leads" "$(readlink "$lib/lib$library.so")"
    same "lib$library.so.1.0.0" "where lib$library.so.1 leads" "$(readlink "$lib/lib$library.so.1")"
    readelf -d "$lib/lib$library.so" | grep -qF "soname: [lib$library.so.1]" || fail "lib$library has another soname"
  done
  for file in include/tintvert.h include/tintvert/rgb{,_8bit,_deep,_rle}.h include/tintvert/companions/zkutil.h \
    include/tintvert_checked.h include/tintvert/checked{,_routines,_c_routines}.h \
    share/doc/tintvert/LICENSE share/doc/tintvert/README.md share/doc/tintvert/examples/bars.cpp; do
    [ -f "$1/$file" ] || fail "$file is missing"
  done
  local known
  known=$(grep -rIlF -e "$project" -e "$build" -e "$work" "$1" || true)
  same '' 'the text that knows its place' "$known"
  local programs=("$lib"/*.so)
  [ ! -e "$1/bin/tintvert" ] || programs+=("$1/bin/tintvert")
  "$project/tests/install/elf.sh" "${hardened[@]}" "${programs[@]}" || fail 'what is installed is not hardened'
  readelf -d "$lib/libtintvert.so" | grep -qF 'runpath: [$ORIGIN]' || fail 'libtintvert looks for its companions elsewhere'
  if [ -e "$1/bin/tintvert" ]; then
    same 'tintvert 1.0.0' 'what the tool calls itself' "$("$1/bin/tintvert" --version | head -n 1)"
    pages "$1/share" "$1/bin/tintvert"
  fi
}

# pages SHARE TOOL: the tool's manual pages, and no others, and its completions, as the tool writes them.
pages() {
  local page shell command
  page=$1/man/man1/tintvert.1
  expect "$(cat "$page")" "$2" man
  local commands
  mapfile -t commands < <(sed -n 's/^\.BR tintvert\\-\([a-z0-9]*\) (1).*/\1/p' "$page")
  same "$(printf '%s\n' tintvert.1 "${commands[@]/%/.1}" | sed '2,$s/^/tintvert-/' | LC_ALL=C sort)" 'the manual' \
    "$(find "$1/man" -type f -printf '%f\n' | LC_ALL=C sort)"
  for command in "${commands[@]}"; do expect "$(cat "$1/man/man1/tintvert-$command.1")" "$2" man "$command"; done
  for shell in bash:bash-completion/completions/tintvert zsh:zsh/vendor-completions/_tintvert \
    fish:fish/vendor_completions.d/tintvert.fish; do
    expect "$(cat "$1/${shell#*:}")" "$2" completions "${shell%%:*}"
  done
}

same "$(cat "$project/examples/readme.cpp")" 'the program in README.md' \
  "$(sed -n '/^```cpp$/,/^```$/{/^```/!p}' "$project/README.md")"

DESTDIR=$work/stage cmake --install "$build" --prefix /opt/tintvert >/dev/null
tree=$work/stage/opt/tintvert
for place in "$tree" "$work/moved"; do
  if [ "$place" != "$tree" ]; then mv "$tree" "$place"; fi
  looks "$place"
  by_find_package "$place"
  by_pkg_config "$place"
  by_the_docs "$place"
  other_versions "$place"
done
echo 'outside: built and run by find_package and pkg-config, in two places'
