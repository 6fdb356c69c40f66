#!/usr/bin/env bash
# No program of the project has two different types of one name. Each file would compile, and a program that links both
# be undefined: the linker takes the functions of one for both. A type of one file belongs in an anonymous namespace.
# Read from the text, where clang-format places namespaces and the types in them at the start of a line.
set -euo pipefail
cd "$(dirname "$0")/../.."

# twice PLACE...: the types that the files below these places define more than once, and where.
twice() {
  find "$@" \( -name '*.h' -o -name '*.cpp' \) -print0 | sort -zu | xargs -0 awk '
    FNR == 1 { depth = anonymous = 0 }
    /^namespace .*\{/ { space[++depth] = $2; if ($2 == "{") ++anonymous }
    /^\}  \/\/ namespace/ { if (space[depth--] == "{") --anonymous }
    /^(struct|class|union|enum|enum class) [A-Za-z_0-9]+( |$)/ && (/\{/ || !/;/) && !anonymous {
      name = ($2 == "class" ? $3 : $2)
      for (i = depth; i > 0; --i) name = space[i] "::" name
      if (seen[name, FILENAME]++) next  # what #if chooses from; the compiler refuses others
      places[name] = places[name] " " FILENAME ":" FNR
      ++count[name]
    }
    END { for (name in count) if (count[name] > 1) print name " in" places[name] }'
}

# together PLACE...: those of PLACE... that exist make one program.
together() {
  local place there=()
  for place in "$@"; do [ ! -e "$place" ] || there+=("$place"); done
  twice "${there[@]}"
}

programs() {
  local product=(include src simd catalog checked core tools/tintvert) folder
  for folder in tests/*/; do together "${product[@]}" tests/support tests/reference "$folder"; done
  for folder in fuzz bench; do together "${product[@]}" $folder; done
  for folder in companions/*/; do together simd "$folder"; done
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf 'namespace one {\nstruct Pair {\n    int a;\n};\nnamespace {\nstruct Own {\n};\n}  // namespace\n}  // namespace one\n' |
  tee "$work/first.h" >"$work/second.cpp"
[ "$(twice "$work")" = "one::Pair in $work/first.h:2 $work/second.cpp:2" ] ||
  { echo 'one_definition: a type with two definitions is not found' >&2; exit 1; }

found=$(programs | sort -u)
[ -z "$found" ] || { echo "$found" >&2; exit 1; }
