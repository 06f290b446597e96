# SPDX-License-Identifier: MIT
#
# shellcheck shell=bash disable=SC2154
#
# The part of packaging/check.sh about what is neither the Debian package nor the archive for this
# system. What `make packages` has left out is not checked, and said to be.

# made <pattern>: prints the one file of dist that is meant; false where there is none
made() {
  local files
  mapfile -t files < <(compgen -G "dist/$1")
  ((${#files[@]} < 2)) || die "expected one file, found: ${files[*]}"
  ((${#files[@]} == 1)) || {
    say "not checked, because there is none: $1" >&2
    return 1
  }
  printf '%s\n' "${files[0]}"
}

# Every file is in the list, and is the one that the list means.
try_checksums() {
  (cd dist && sha256sum --check --quiet SHA256SUMS)
  [[ $(find dist -type f ! -name SHA256SUMS | wc -l) == $(wc -l <dist/SHA256SUMS) ]] ||
    die 'dist/SHA256SUMS lists other files than there are'
  say 'dist/SHA256SUMS fits'
}

# As a user installs it, without any network. In the clean system if there is one.
try_wheel() {
  local wheel top=
  wheel=$(made "*-manylinux_*_$(uname -m).whl") || return 0
  if [[ -x $root/usr/bin/apt-get ]]; then
    in_root "$root" env DEBIAN_FRONTEND=noninteractive \
      apt-get -q -y --no-install-recommends install python3-venv >"$work/python.log" 2>&1 ||
      die "Python cannot be installed: $(<"$work/python.log")"
    top=$root
  fi
  local folder=${top:-$work}/venv
  rm -rf "$folder"
  mkdir -p "$folder"
  cp "$wheel" "$demo" "$folder"
  local run=(env -i PATH=/usr/sbin:/usr/bin:/bin)
  ((EUID != 0)) || run=(unshare --net "${run[@]}")
  "${run[@]}" ${top:+chroot "$top"} sh -euc '
    cd "$1"
    python3 -m venv . >/dev/null
    bin/pip install --quiet --no-index *.whl
    bin/python -m a2l2json demo.a2l demo.json >console.txt
    bin/python -c "
import a2l2json, sys
sys.stdout.buffer.write(a2l2json.load(\"demo.a2l\", mend=False).json)
module = a2l2json.load(\"demo.a2l\").document[\"FModules\"][0]
assert module[\"FMEASUREMENT\"], module
try:
    a2l2json.load(\"bin/python3\")
except a2l2json.A2LError as error:
    assert \"not an A2L file\" in str(error), error
else:
    raise AssertionError(\"a program was converted\")
" >loaded.json
  ' sh "${folder#"$top"}" 2>"$work/wheel.log" ||
    die "$wheel cannot be installed or used: $(<"$work/wheel.log")"
  cmp "$folder/demo.json" "$expected"
  cmp "$folder/loaded.json" "$expected"
  [[ $(<"$folder/console.txt") == Success. ]] || die 'python -m a2l2json says something else'
  say "$wheel is installed with pip and converts $demo to $expected, byte for byte"
}

# The programs under QEMU, on all golden cases; the library in the wheel by the example in C.
try_arm64() {
  local archive wheel arm=$work/arm64
  archive=$(made '*-linux-aarch64.tar.gz') || return 0
  rm -rf "$arm"
  mkdir -p "$arm/wheel"
  tar -xzf "$archive" -C "$arm" --strip-components=1
  file "$arm/bin/a2l2json" | grep -q 'aarch64.*statically linked' ||
    die "$archive has no static program for 64-bit ARM"
  tests/run_cases.py qemu-aarch64 "$arm/bin/a2l2json" || die "$archive converts golden cases wrongly"
  say "so does the program of $archive, and all golden cases, under QEMU"
  wheel=$(made '*-manylinux_*_aarch64.whl') || return 0
  unzip -q "$wheel" -d "$arm/wheel"
  aarch64-linux-gnu-gcc -std=c99 examples/c/main.c -I capi "$arm/wheel/a2l2json/liba2l2json.so" \
    -Wl,-rpath,"$arm/wheel/a2l2json" -o "$arm/example"
  ln -sf liba2l2json.so "$arm/wheel/a2l2json/liba2l2json.so.1"
  qemu-aarch64 -L /usr/aarch64-linux-gnu "$arm/example" "$demo" | cmp - "$expected"
  say "so does the library in $wheel, called from C; no Python for it is here"
}

try_windows() {
  local archive wheel windows=$work/windows
  archive=$(made '*-windows-*.zip') || return 0
  rm -rf "$windows"
  mkdir -p "$windows/wheel"
  unzip -q "$archive" -d "$windows"
  local program library
  program=$(the_only "$windows"/*/bin/a2l2json.exe)
  library=$(the_only "$windows"/*/bin/a2l2json.dll)
  the_only "$windows"/*/include/a2l2json.h >/dev/null
  wheel=$(made '*-win_amd64.whl') && unzip -q "$wheel" -d "$windows/wheel"
  local file others
  for file in "$program" "$library" "$windows"/wheel/a2l2json/a2l2json.dll; do
    others=$(x86_64-w64-mingw32-objdump -p "$file" | sed -n 's/.*DLL Name: //p' |
      grep -vixE '(kernel32|msvcrt|shell32)\.dll' || true)
    [[ -z $others ]] || die "$file needs $others"
  done
  say "$archive and $wheel need nothing but Windows"
  if command -v wine64 wine >/dev/null; then
    scripts/wine "$program" "$demo" "$windows/demo.json" >/dev/null
    cmp "$windows/demo.json" "$expected"
    say "the program of $archive converts $demo under Wine"
  else
    say 'there is no Wine here: programs for Windows were not run'
  fi
}

try_npm() {
  local package node=$work/npm
  package=$(made 'a2l2json-*.tgz') || return 0
  rm -rf "$node"
  mkdir -p "$node"
  cp "$package" "$demo" "$node"
  (
    cd "$node"
    npm init --yes >/dev/null
    npm install --offline --no-audit --no-fund --silent ./*.tgz
    npx --offline a2l2json demo.a2l demo.json >console.txt
  )
  cmp "$node/demo.json" "$expected"
  [[ $(<"$node/console.txt") == Success. ]] || die 'npx a2l2json says something else'
  say "$package is installed with npm and converts $demo, byte for byte"
}

# Its tests, in a browser, are those of web/.
try_page() {
  local page
  page=$(made '*.html') || return 0
  if grep -oE '(src|href)="?(https?:)?//[^" >]+' "$page" | grep . >&2; then
    die "$page loads something from elsewhere"
  fi
  say "$page is one file that loads nothing from elsewhere"
}

try_checksums
try_wheel
try_arm64
try_windows
try_npm
try_page
