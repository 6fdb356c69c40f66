#!/usr/bin/env bash
# The gate of scripts/abi, closed and open: our own library with one source changed is refused by name, and as
# it is it passes.
set -euo pipefail
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { echo "gate: $*" >&2; exit 1; }

"$project/scripts/abi" || fail "the libraries are not what abi/ records"

# A name without a declaration would be held to nothing but its name.
names() { grep -ho "<$1 name='[^']*'" "$project"/abi/*.abi | cut -d"'" -f2 | sort; }
[ "$(names elf-symbol | wc -l)" -gt 162 ] || fail "abi/ records too few names"
undeclared=$(comm -23 <(names elf-symbol) <(names 'function-decl'))
[ -z "$undeclared" ] || fail "abi/ records no arguments of $undeclared"

# variant NAME SED: the library with SED applied to frame.h and scratch.cpp, in $work/NAME.
objects=$project/build/abi/src/CMakeFiles/tintvert_objects.dir
variant() {
  local folder=$work/$1
  mkdir -p "$folder"
  cp -r "$project/include" "$folder"
  cp -P "$project"/build/abi/lib/*.so* "$folder"
  sed -i "$2" "$folder/include/tintvert/frame.h"
  sed "$2" "$project/src/frame/scratch.cpp" >"$folder/scratch.cpp"
  c++ -std=c++20 -O0 -g -fPIC -I"$folder/include" -I"$project/src" -I"$project" -I"$project"/companions/{zkutil,kmrutil,ycbcr} \
    -c "$folder/scratch.cpp" -o "$folder/scratch.o"
  local others
  mapfile -t others < <(find "$objects" -name '*.o' ! -path '*/frame/scratch.cpp.o' | sort)
  c++ -shared -Wl,-soname,libtintvert.so.1 -Wl,--version-script="$project/build/abi/src/tintvert.map" \
    -o "$folder/libtintvert.so.1.0.0" "$folder/scratch.o" "${others[@]}" -L"$folder" -lzkutil -lkmrutil -lycbcr
}

# passes NAME / refused NAME TEXT...: what the gate says to the variant.
passes() { "$project/scripts/abi" compare "$work/$1" >"$work/$1.txt" 2>&1 || fail "$1 is refused: $(cat "$work/$1.txt")"; }
refused() {
  local name=$1
  shift
  if "$project/scripts/abi" compare "$work/$name" >"$work/$name.txt" 2>&1; then fail "$name passes"; fi
  for text in "$@"; do
    grep -qF -- "$text" "$work/$name.txt" || fail "$name is refused without '$text': $(cat "$work/$name.txt")"
  done
}

variant untouched ''
passes untouched

variant wider 's/malloc_own_cache_lines(int size/malloc_own_cache_lines(long size/; s/request_for(size)/request_for((int)size)/'
refused wider 'malloc_own_cache_lines(int, void**, void**)' "'int' to 'long int'" 'abi/libtintvert.abi'

variant longer 's/free_own_cache_lines(void\*\* raw, void\*\* aligned)/free_own_cache_lines(void** raw, void** aligned, int)/'
refused longer 'free_own_cache_lines(void**, void**)' 'parameter 3 of type'

variant returning 's/void free_own_cache_lines/int free_own_cache_lines/; s/\*aligned = nullptr;/*aligned = nullptr; return 0;/'
refused returning 'free_own_cache_lines(void**, void**)' 'return type changed'

variant renamed 's/free_own_cache_lines/release_own_cache_lines/'
refused renamed 'free_own_cache_lines'

echo "gate: four changes refused by name"
