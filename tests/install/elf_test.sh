#!/usr/bin/env bash
# Checks the RUNPATHs of the build tree, and that elf.sh refuses what it is there for.
#   elf_test.sh FILE...
. "$(dirname "$0")/expect.sh"
elf=$project/tests/install/elf.sh
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# linked NAME FLAG...: a program that does nothing, linked with these flags.
linked() {
  local name=$1
  shift
  echo 'int main() { return 0; }' | g++ -x c++ - -o "$work/$name" "$@"
}

"$elf" "$@"
linked fine -Wl,-rpath,'/opt/lib:$ORIGIN/../lib'
"$elf" "$work/fine"
for path in lib : /opt/lib: :/opt/lib '/opt/lib::/usr/lib' '/opt:./lib' '$ORIGINAL'; do
  linked wrong -Wl,-rpath,"$path"
  refuse "$elf" "$work/wrong"
done
refuse "$elf" --hardened "$work/fine"
refuse "$elf" "$0"
echo 'elf: RUNPATHs are absolute or relative to the file'
