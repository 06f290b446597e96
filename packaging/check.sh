#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# usage: packaging/check.sh
#
# Builds the packages and tries them as a user would: the Debian package in a clean system, the
# statically linked programs in an empty system, and programs that use the installed library (among
# them examples/consumer) with CMake and with pkg-config. Stops at the first failure.
#
# As root, debootstrap makes the clean system from the package sources of this machine. Without root
# or debootstrap, it is the unpacked package with the shared libraries of this machine. All files
# stay in build/package-check. The wheel, the archives for other systems, the npm package and the page
# are tried as well where they have been made.

set -euo pipefail
shopt -s globstar nullglob

cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
work=$PWD/build/package-check
root=$work/root
demo=examples/demo.a2l
expected=examples/demo.json

say() { printf '%s\n' "packages: $*"; }
die() {
  say "FAILED: $*" >&2
  exit 1
}

# in_root <root> <command>...: runs the command with that folder as the root of the file system
in_root() {
  if ((EUID == 0)); then
    chroot "$@"
  else
    unshare --map-root-user chroot "$@"
  fi
}

# try_program <root> <program>: converts the demo there and compares the document
try_program() {
  cp "$demo" "$1/demo.a2l"
  in_root "$1" "$2" demo.a2l demo.json >"$work/console.txt"
  [[ $(<"$work/console.txt") == Success. ]] || die "$2 said: $(<"$work/console.txt")"
  cmp "$1/demo.json" "$expected"
}

# try_mender <root> <program>: mends a file there, with another one that it includes
try_mender() {
  local code=0
  printf '/begin PROJECT p "K\374hler"\n/include "module.a2l"\n/end PROJECT\n' >"$1/engine.a2l"
  printf '/begin MODULE m "" /begin MEASUREMENT m "" UBYTE c 0 0 0 255 ECU_ADDRESS 0x51A50 /end MEASUREMENT /end MODULE' \
    >"$1/module.a2l"
  in_root "$1" "$2" --encoding ISO-8859-1 engine.a2l mended.a2l 2>"$work/console.txt" || code=$?
  ((code == 1)) || die "$2 ended with $code: $(<"$work/console.txt")"
  [[ $(<"$work/console.txt") == *'/include module.a2l is not followed [include]'*' would be lost; '* ]] ||
    die "$2 said: $(<"$work/console.txt")"
  [[ $(<"$1/mended.a2l") == '/begin PROJECT p "Kühler"
  /begin MODULE m ""
    /begin MEASUREMENT m "" UBYTE c 0 0 0 255
      ECU_ADDRESS 0x51A50
    /end MEASUREMENT
  /end MODULE
/end PROJECT' ]] || die "$2 mended: $(<"$1/mended.a2l")"
  in_root "$1" "$2" --quiet mended.a2l || die "$2 finds more in a mended file"
}

# try_consumer <program>: the same with the program of examples/consumer
try_consumer() {
  "$1" "$demo" >"$work/consumer.json" 2>"$work/consumer.txt"
  cmp "$work/consumer.json" "$expected"
  grep -q '^EngineSpeed at ' "$work/consumer.txt" || die "the consumer lists no measurement"
}

# the_only <file>...: prints the file if there is exactly one
the_only() {
  (($# == 1)) && [[ -f $1 ]] || die "expected one file, found: $*"
  printf '%s\n' "$1"
}

# A minimal Debian system of the same release as this one.
clean_system() {
  local release mirror
  ((EUID == 0)) && command -v debootstrap >/dev/null || return 1
  release=$(. /etc/os-release && printf '%s' "${VERSION_CODENAME:-}")
  mirror=$(apt-get indextargets --format '$(CODENAME) $(REPO_URI)' 'Created-By: Packages' |
    sed -n "s/^$release //p" | head -n 1)
  [[ $release && $mirror ]] || return 1
  mkdir -p "$work/cache"
  debootstrap --variant=minbase --cache-dir="$work/cache" "$release" "$root" "$mirror" \
    >"$work/debootstrap.log" 2>&1
}

install_in_clean_system() {
  cp "$deb" "$root/package.deb"
  in_root "$root" env DEBIAN_FRONTEND=noninteractive \
    apt-get -q -y --no-install-recommends install /package.deb >"$work/install.log" 2>&1 ||
    die "the package cannot be installed: $(<"$work/install.log")"
}

unpack_with_libraries() {
  local library
  rm -rf --one-file-system "$root"
  mkdir -p "$root"
  dpkg -x "$deb" "$root"
  ldd "$root"/usr/bin/a2l{2json,mend} | grep -o '/[^ ]*' | while read -r library; do
    mkdir -p "$root/${library%/*}"
    cp -L "$library" "$root/$library"
  done
}

# ---------------------------------------------------------------------------------------------

make deps-packages
rm -rf --one-file-system "$root" "$work"/{static,empty,installed,consumer,check}
mkdir -p "$work"
clean_system &
system=$!
trap 'kill "$system" 2>/dev/null || true' EXIT
make packages
deb=$(the_only dist/*.deb)
archive=$(the_only dist/*-linux-"$(uname -m)".tar.gz)

if wait "$system"; then
  install_in_clean_system
  say "$deb is installed in a clean system made by debootstrap"
else
  unpack_with_libraries
  say "no debootstrap here: $deb is unpacked together with the shared libraries that it needs"
fi
try_program "$root" /usr/bin/a2l2json
say "the installed program converts $demo to $expected, byte for byte"
try_mender "$root" /usr/bin/a2lmend
say 'the other one mends a file in ISO-8859-1 that includes another'

mkdir -p "$work/static" "$work/empty"
tar -xzf "$archive" -C "$work/static" --strip-components=1
cp "$work"/static/bin/a2l{2json,mend} "$work/empty"
try_program "$work/empty" /a2l2json
try_mender "$work/empty" /a2lmend
# Packages are compiled in another way than what all tests run.
tests/run_cases.py "$work/static/bin/a2l2json" || die "$archive converts golden cases wrongly"
say "so do the programs of $archive, in an otherwise empty system, and all golden cases"

cmake -S examples/consumer -B "$work/consumer" -DCMAKE_PREFIX_PATH="$root/usr" \
  -DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF >"$work/consumer.log"
cmake --build "$work/consumer" >>"$work/consumer.log"
try_consumer "$work/consumer/consumer"
say 'examples/consumer works with the CMake package'

pc=$(the_only "$root"/usr/lib/*/pkgconfig/a2l2json.pc)
export PKG_CONFIG_LIBDIR=${pc%/*}
read -ra flags < <(pkg-config --cflags --libs a2l2json)
g++ -std=c++20 examples/consumer/main.cpp "${flags[@]}" -o "$work/consumer/with-pkg-config"
try_consumer "$work/consumer/with-pkg-config"
say 'examples/consumer works with pkg-config'

cmake -S examples/c -B "$work/c" -DCMAKE_PREFIX_PATH="$root/usr" >"$work/c.log"
cmake --build "$work/c" >>"$work/c.log"
"$work/c/example" "$demo" | cmp - "$expected"
read -ra c_flags < <(pkg-config --cflags --libs a2l2json-c)
cc -std=c99 -Wall -Wextra -Wpedantic -Werror examples/c/main.c "${c_flags[@]}" \
  -o "$root/c-example"
cp "$demo" "$root/demo.a2l"
in_root "$root" /c-example demo.a2l | cmp - "$expected"
say 'examples/c works with the CMake package and with pkg-config, and where the package is installed'

cmake -S packaging/check -B "$work/check" -DCMAKE_PREFIX_PATH="$root/usr" \
  -DJSON11="$PWD/.deps/json11" >"$work/check.log"
cmake --build "$work/check" >>"$work/check.log"
version=$("$work/check/check" examples/small.a2l examples/small.json) || die 'the library gives a wrong result'
say 'the library reads, writes and converts bytes in memory, also to a json11 value'
"$work/check/own_names" || die 'macros or headers of a program and of the library disturb each other'
say 'a program may have macros and headers with names of the library'

# The program in the README.
sed -n '/^```cpp$/,/^```$/{/^```/d;p}' README.md >"$work/check/readme.cpp"
g++ -std=c++20 "$work/check/readme.cpp" "${flags[@]}" -o "$work/check/readme"
"$work/check/readme" "$demo" >"$work/check/readme.json" 2>"$work/check/readme.txt"
cmp "$work/check/readme.json" "$expected"
[[ $(<"$work/check/readme.txt") == EngineSpeed ]] || die 'the program in the README prints something else'
say 'so does the program in the README'

# The program in the page on mending.
sed -n '/^```cpp$/,/^```$/{/^```/d;p}' docs/mending.md >"$work/check/mending.cpp"
g++ -std=c++20 "$work/check/mending.cpp" "${flags[@]}" -o "$work/check/mending"
printf 'ASAP2_VERSION 1 71 A2ML_VERSION 1 31\n' >"$work/check/engine.a2l"
(cd "$work/check" && ./mending 2>mending.txt >mending.json)
[[ $(<"$work/check/mending.txt") == *'[same-line]'*'2 values would be lost' ]] ||
  die 'the program in docs/mending.md tells something else'
grep -q '"FA2ML_VERSION_VERSION_NO": 1' "$work/check/mending.json" ||
  die 'the program in docs/mending.md converts something else'
say 'so does the program in docs/mending.md'

# The program in the page on C.
sed -n '/^```c$/,/^```$/{/^```/d;p}' examples/c/README.md >"$work/check/readme.c"
cc -std=c99 "$work/check/readme.c" "${c_flags[@]}" -o "$work/check/readme-c"
cp "$demo" "$work/check/engine.a2l"
(cd "$work/check" && LD_LIBRARY_PATH=${pc%/*/*} ./readme-c) | cmp - <(cat "$expected" && echo) ||
  die 'the program in examples/c/README.md prints something else'
say 'so does the program in examples/c/README.md'

# Every header compiles without another one before it.
find "$root/usr/include/a2l2json" -name '*.h' ! -name 'json11*' -printf '%P\0' |
  xargs -0 -P "${JOBS:-2}" -I{} \
    g++ -std=c++20 -Wall -Wextra -Werror -fsyntax-only "${flags[@]}" -include a2l2json/{} -x c++ /dev/null ||
  die 'a header does not compile by itself'
say 'each of the installed headers compiles by itself'

# One version everywhere.
[[ $(dpkg-deb --field "$deb" Version) == "$version" && $archive == *-"$version"-* &&
  $(pkg-config --modversion a2l2json) == "$version" &&
  $(pkg-config --modversion a2l2json-c) == "$version" &&
  $(zcat "$root/usr/share/man/man1/a2l2json.1.gz") == *"a2l2json $version"* &&
  $(zcat "$root/usr/share/man/man1/a2lmend.1.gz") == *"a2l2json $version"* &&
  $("$work/static/bin/a2lmend" --version) == "a2lmend $version" ]] ||
  die "the versions differ from $version"
say "everything has the version $version"

# Files that programs look for by name, in the package and in an installation by `cmake --install`.
cmake --install build/package --prefix "$work/installed" >"$work/installed.log"
for prefix in "$root/usr" "$work/installed"; do
  for file in bin/a2l2json share/a2l2json/json.schema.json 'share/man/man1/a2l2json.1*' \
    share/bash-completion/completions/a2l2json 'share/zsh/*/_a2l2json' \
    share/fish/vendor_completions.d/a2l2json.fish bin/a2lmend 'share/man/man1/a2lmend.1*' \
    share/bash-completion/completions/a2lmend 'share/zsh/*/_a2lmend' \
    share/fish/vendor_completions.d/a2lmend.fish include/a2l2json/a2l2json.h \
    'lib*/**/liba2l2json.a' 'lib*/**/cmake/a2l2json/a2l2json-config.cmake' \
    'lib*/**/pkgconfig/a2l2json.pc' include/a2l2json.h 'lib*/**/liba2l2json.so.1' \
    'lib*/**/liba2l2json-c.so' 'lib*/**/pkgconfig/a2l2json-c.pc'; do
    compgen -G "$prefix/$file" >/dev/null || die "there is no $prefix/$file"
  done
done
# completed <word>...: the proposals of bash for the last of these words, which begin a command
completed() (
  source "$root/usr/share/bash-completion/completions/$1"
  COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
  "_$1"
  printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd ' '
)
a2l_files='examples/c examples/consumer examples/demo.a2l examples/small.a2l'
[[ $(completed a2l2json examples/) == "$a2l_files" &&
  $(completed a2l2json "$demo" examples/d) == 'examples/demo.a2l examples/demo.json' &&
  $(completed a2l2json "$demo" demo.json '') == '' ]] || die 'bash completes a2l2json wrongly'
[[ $(completed a2lmend examples/) == "$a2l_files" &&
  $(completed a2lmend -I examples --quiet examples/) == "$a2l_files" &&
  $(completed a2lmend -I examples/) == 'examples/c examples/consumer' &&
  $(completed a2lmend --format s) == sarif &&
  $(completed a2lmend "$demo" --q) == --quiet &&
  $(completed a2lmend --encoding UTF-8 "$demo" examples/d) == 'examples/demo.a2l examples/demo.json' &&
  $(completed a2lmend "$demo" out.a2l '') == '' ]] || die 'bash completes a2lmend wrongly'
cmp "$(pkg-config --variable=schema a2l2json)" docs/json.schema.json
say 'programs, library, manual pages, completions and schema are in their places'

# dead_links <folder>: the links of the pages there that lead nowhere; code has none
dead_links() {
  local page target
  for page in "$1"/**/*.md; do
    { sed '/^```/,/^```/d' "$page" | grep -oP '(\]\(|^\[[^]]+\]: )\K[^)#]+' || true; } |
      while read -r target; do
        [[ $target == http* || -e ${page%/*}/$target ]] || printf '%s: %s\n' "$page" "$target"
      done
  done
}
for folder in "$root/usr" "$work/installed" "$work/static"; do
  [[ -f $folder/share/doc/a2l2json/docs/json.md ]] || die "there are no pages in $folder"
  dead=$(dead_links "$folder/share/doc/a2l2json")
  [[ -z $dead ]] || die "links of installed pages lead nowhere: $dead"
done
say 'no link of an installed page leads nowhere'

# With intermediate code, only one compiler could link the library.
if readelf --section-headers --wide "${pc%/*/*}/liba2l2json.a" | grep -q '\.gnu\.lto_'; then
  die 'the library holds intermediate code of link time optimisation'
fi
. packaging/check_others.sh

say "all is well ($SECONDS s)"
