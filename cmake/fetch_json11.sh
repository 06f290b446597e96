#!/bin/sh
# SPDX-License-Identifier: MIT
#
# usage: cmake/fetch_json11.sh [folder]
#
# Puts json11.cpp and json11.hpp (and the licence, if it is a separate file) into `folder`, by
# default .deps/json11. For distributions without a json11 package, but with a source package that
# holds the two files. Asks only the package sources of the machine, through a private copy of their
# list with "deb" turned into "deb-src". The lists, caches and settings of apt stay as they are, and
# root is not needed.

set -eu

here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
folder=${1:-$(dirname -- "$here")/.deps/json11}
sums=$here/Dependencies.cmake

say() { printf '%s\n' "fetch_json11: $*" >&2; }

# Is the file's SHA-256 one of those that Dependencies.cmake accepts?
accepted() {
  sum=$(sha256sum "$1" | cut -d ' ' -f 1)
  grep -q "^ *$sum" "$sums"
}

if [ -f "$folder/json11.cpp" ] && [ -f "$folder/json11.hpp" ] &&
  accepted "$folder/json11.cpp" && accepted "$folder/json11.hpp"; then
  say "already in $folder"
  exit 0
fi

if ! command -v apt-get >/dev/null 2>&1; then
  say "there is no apt-get here; install json11 with the package manager of this system"
  exit 1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
mkdir -p "$work/parts" "$work/lists/partial" "$work/cache/archives/partial" "$work/download"

# The private list of sources.
: >"$work/sources.list"
for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
  [ -f "$list" ] || continue
  sed -n -E '/[[:space:]]cdrom:/d; s/^[[:space:]]*deb([[:space:]])/deb-src\1/p' "$list" \
    >>"$work/sources.list"
done
for list in /etc/apt/sources.list.d/*.sources; do
  [ -f "$list" ] || continue
  sed -E 's/^[Tt][Yy][Pp][Ee][Ss]:.*/Types: deb-src/' "$list" >"$work/parts/$(basename "$list")"
done

# The private state, without the hooks of the system's configuration.
cat >"$work/apt.conf" <<CONF
#clear APT::Update::Pre-Invoke;
#clear APT::Update::Post-Invoke;
#clear APT::Update::Post-Invoke-Success;
Dir::Etc::SourceList "$work/sources.list";
Dir::Etc::SourceParts "$work/parts";
Dir::State::Lists "$work/lists";
Dir::Cache "$work/cache";
CONF
if [ "$(id -u)" -eq 0 ]; then
  printf '%s\n' 'APT::Sandbox::User "root";' >>"$work/apt.conf"
fi

apt() { apt-get -c "$work/apt.conf" -qq "$@" </dev/null >>"$work/log" 2>&1; }

say "reading the list of source packages"
apt update || true # one source without source packages must not stop the others

# take <source package> <folder inside it>
take() {
  say "trying the source package $1"
  rm -rf "$work/download" "$work/out"
  mkdir -p "$work/download" "$work/out"
  (cd "$work/download" && apt source --download-only "$1") || return 1
  for archive in "$work/download"/*.orig.tar.*; do
    [ -f "$archive" ] || return 1
    tar -xf "$archive" -C "$work/out" --no-same-owner --wildcards \
      --transform 's,.*/,,' "*/$2/json11.cpp" "*/$2/json11.hpp" >>"$work/log" 2>&1 || return 1
    tar -xf "$archive" -C "$work/out" --no-same-owner --wildcards \
      --transform 's,.*/,,' "*/$2/LICENSE.txt" >>"$work/log" 2>&1 || true
  done
  for file in json11.cpp json11.hpp; do
    if ! accepted "$work/out/$file"; then
      say "not used: the $file of $1 has the SHA-256 $sum, which is not an accepted one"
      return 1
    fi
  done
}

if take nextpnr 3rdparty/json11 || take yosys libs/json11; then
  mkdir -p "$folder"
  for file in "$work/out"/*; do
    cp "$file" "$folder/$(basename "$file").new"
    chmod 644 "$folder/$(basename "$file").new"
    mv -f "$folder/$(basename "$file").new" "$folder/$(basename "$file")"
  done
  say "json11 is in $folder"
else
  grep -E '^(E|W): ' "$work/log" | head -n 4 >&2 || true
  say "found no source package with an accepted json11; is there a network, and do this"
  say "machine's package sources serve source packages?"
  exit 1
fi
