# Sourced by the scripts beside it.
set -euo pipefail
export CMAKE_GENERATOR=Ninja  # CMake's own choice is make, which building needs nowhere else
unset CMAKE_PREFIX_PATH PKG_CONFIG_PATH LD_LIBRARY_PATH LD_PRELOAD
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

fail() { echo "$(basename "$0"): $*" >&2; exit 1; }

# same EXPECTED WHAT GOT
same() { [ "$3" = "$1" ] || fail "$2 is"$'\n'"$3"$'\n'"and should be"$'\n'"$1"; }

# expect TEXT COMMAND...: the command succeeds and prints TEXT.
expect() {
  local text=$1 got
  shift
  got=$("$@") || fail "'$*' fails"
  same "$text" "'$*'" "$got"
}

# refuse COMMAND...: the command fails.
refuse() { if "$@" >/dev/null 2>&1; then fail "'$*' succeeds"; fi; }
