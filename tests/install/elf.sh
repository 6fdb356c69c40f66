#!/usr/bin/env bash
# Checks the programs and libraries among FILES. No entry of a RUNPATH is empty or relative: either means a folder that
# depends on where a program is started. With --hardened: symbols are bound before a program begins and their table is
# read-only then, the code is position-independent, and the flags of cmake/flags.cmake show in what was built.
#   elf.sh [--hardened] FILE...
set -euo pipefail

hardened=
if [ "$1" = --hardened ]; then
  hardened=yes
  shift
fi
bad=0 seen=0 checks=
complain() { echo "elf: $1: $2" >&2; bad=1; }

for file in "$@"; do
  [ "$(head -c 4 "$file" | od -An -tx1)" = ' 7f 45 4c 46' ] || continue
  seen=$((seen + 1))
  dynamic=$(readelf -dW "$file")
  while read -r path; do
    # A colon at the end, at the start or doubled leaves an entry empty.
    while IFS= read -r entry; do
      case "$entry" in
        '$ORIGIN' | '$ORIGIN/'* | /*) ;;
        '') complain "$file" "an empty entry in its RUNPATH $path" ;;
        *) complain "$file" "the relative entry $entry in its RUNPATH" ;;
      esac
    done < <(tr : '\n' <<<"$path")
  done < <(sed -nE 's/.*\((RUNPATH|RPATH)\).*\[(.*)\].*/\2/p' <<<"$dynamic")
  [ -n "$hardened" ] || continue
  grep -qE '\(FLAGS_1\).*\bNOW\b' <<<"$dynamic" || complain "$file" 'symbols are bound late'
  headers=$(readelf -lhW "$file")
  grep -q GNU_RELRO <<<"$headers" || complain "$file" 'no RELRO'
  grep -qE 'Type: +DYN' <<<"$headers" || complain "$file" 'at a fixed address'
  if grep -q 'X86-64' <<<"$headers"; then
    [ "$(objdump -d --no-show-raw-insn "$file" | grep -c endbr64)" -gt 0 ] || complain "$file" 'no -fcf-protection'
  fi
  checks+=$(nm -D --undefined-only "$file")
done
[ $seen -gt 0 ] || { echo "elf: no program or library among $*" >&2; exit 1; }
if [ -n "$hardened" ]; then
  grep -q __stack_chk_fail <<<"$checks" || complain "$*" 'no -fstack-protector-strong'
  grep -qE '__[a-z]+_chk\b' <<<"$checks" || complain "$*" 'no _FORTIFY_SOURCE'
fi
exit $bad
