#!/usr/bin/env bash
# Installs the packages of a folder in a new Debian root, runs the tool there, builds an example with the -dev
# package, removes all of it and looks for what is left.
#   clean_root.sh FOLDER
set -euo pipefail
packages=$1

skip() { echo "clean root: skipped, $*"; exit 0; }
fail() { echo "clean root: $*" >&2; exit 1; }

. "$(dirname "$0")/../../scripts/lib/mirror.sh"
[ "$(id -u)" -eq 0 ] || skip 'it takes the superuser'
command -v debootstrap >/dev/null || skip 'debootstrap is not installed'
[ -n "$mirror" ] || skip "apt knows no mirror of '$release'"

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
debootstrap --variant=minbase "$release" "$root" "$mirror" >"$root.log" 2>&1 || fail "$(tail -n 5 "$root.log")"
rm "$root.log"

in_root() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C DEBIAN_FRONTEND=noninteractive "$@"; }
apt() { in_root apt-get -qq -y --no-install-recommends "$@" >"$root/apt.log" 2>&1 || fail "apt-get $*: $(cat "$root/apt.log")"; }
files() { (cd "$root" && find . -xdev ! -path './var/*' ! -path './tmp/*' | sort); }
debs() { for name in "$@"; do echo /tmp/debs/"$(basename "$packages"/"${name}"_*.deb)"; done; }

mkdir "$root/tmp/debs"
cp "$packages"/*.deb "$root/tmp/debs"
apt update

# The tool brings its libraries along.
mapfile -t tool < <(debs tintvert libtintvert1 libtintvert-companions)
apt install "${tool[@]}"
"$(dirname "$0")/../install/elf.sh" --hardened "$root"/usr/bin/tintvert "$root"/usr/lib/*/lib{tintvert,zkutil,kmrutil,ycbcr}.so.1 ||
  fail 'what is shipped is not hardened'
version=$(in_root tintvert --version)
[ "${version%%$'\n'*}" = 'tintvert 1.0.0' ] || fail "the tool does not tell its version: $version"
! grep without <<<"$version" || fail 'the tool is built without a library that it could have'
[ "$(in_root tintvert list --json | grep -c '"name"')" -eq 162 ] || fail 'the tool does not list 162 routines'
for page in man/man1/tintvert.1.gz man/man1/tintvert-convert.1.gz bash-completion/completions/tintvert \
  zsh/vendor-completions/_tintvert fish/vendor_completions.d/tintvert.fish; do
  [ -s "$root/usr/share/$page" ] || fail "$page is missing"
done
in_root tintvert demo --output /tmp/demo >/dev/null || fail 'the demo fails'
[ -n "$(find "$root/tmp/demo" -name '*.png')" ] || fail 'the demo leaves no picture'

# Programs as someone who has the -dev and -doc packages builds them.
apt install g++ pkg-config
files >"$root/tmp/before"
mapfile -t rest < <(debs libtintvert-dev libtintvert-doc)
apt install "${rest[@]}"
# build EXAMPLE PACKAGE: with the flags that pkg-config prints.
build() {
  in_root sh -c "g++ -std=c++20 /usr/share/doc/libtintvert-doc/examples/$1.cpp -o /tmp/$1 \$(pkg-config --cflags --libs $2)" ||
    fail "$1.cpp does not build"
}
build readme tintvert
[ "$(in_root /tmp/readme)" = '99 81 211 81' ] || fail 'the program of README.md prints something else'
build checked tintvert-checked
[ "$(in_root /tmp/checked | head -n 1)" = 'done' ] || fail 'a checked call does something else'

in_root dpkg --purge libtintvert-dev libtintvert-doc >/dev/null || fail 'purging -dev and -doc fails'
files | diff "$root/tmp/before" - || fail 'files of -dev or -doc are left or missing'
in_root dpkg --purge tintvert libtintvert1 libtintvert-companions >/dev/null || fail 'purging fails'
left=$(files | grep -E 'tintvert|zkutil|kmrutil|ycbcr' || true)
[ -z "$left" ] || fail "left behind: $left"
! in_root ldconfig -p | grep -E 'tintvert|zkutil' || fail 'the linker still knows the libraries'
echo 'clean root: installed, run, built against, removed'
