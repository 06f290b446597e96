#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# usage: tests/docs/recipes.sh [--all] [<folder of a2l2json>]
#
# Runs the code blocks of docs/recipes.md, docs/mending.md and docs/json.md as they stand, in their
# order, in one folder, with a2l2json and a2lmend from the given folder (build/release unless another
# one is given) in the search path. A block must end with the exit code 0, or with the one that a comment of the form
# <!-- exit code 1 --> before it gives; where a block of the kind "text" follows it, it must print
# that. Its section must name the Debian packages that it needs, in a sentence that begins with
# "Needs". A block whose package is not installed is skipped, and so is one with a2lmend where that has
# not been built; with --all they have failed.
#
# Ends with 77, which means skipped, when there is no a2l2json.

set -euo pipefail

all=
if [[ ${1-} == --all ]]; then
  all=yes
  shift
fi
root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
programs=$(cd -- "${1:-$root/build/release}" 2>/dev/null && pwd) || programs=
if [[ ! -x $programs/a2l2json ]]; then
  echo "skipped: there is no a2l2json in ${1:-build/release}; run make build"
  exit 77
fi
export PATH=$programs:$PATH
export LC_ALL=C.UTF-8
unset MAKEFLAGS MAKELEVEL # a make around this script is none of the recipes' business

folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT
cd -- "$folder"

# The files that the recipes speak of.
cases=$root/tests/cases
mkdir a2l docs mixed
cp "$root/examples/demo.a2l" a2l/engine.a2l
cp "$root/examples/small.a2l" a2l/sensor.a2l
cp "$cases/messages/warn_unexpected_element.a2l" a2l/typo.a2l
cat >a2l/coolant.a2l <<'A2L'
/begin PROJECT Coolant "Coolant, up to 130 °C"
  /begin MODULE Engine ""
    /begin COMPU_METHOD Celsius "" LINEAR "%6.1" "°C"
      COEFFS_LINEAR 1 -40
    /end COMPU_METHOD
    /begin MEASUREMENT Coolant "Temperature, inlet" UBYTE Celsius 1 0 -40 130
      ECU_ADDRESS 0xC0002000
      BIT_MASK 0xFF000000
    /end MEASUREMENT
    /begin MEASUREMENT CoolantLevel "" UBYTE NO_COMPU_METHOD 1 0 0 255
      ECU_ADDRESS 0xC0002001
    /end MEASUREMENT
    /begin MEASUREMENT CoolantTrend "" SBYTE NO_COMPU_METHOD 1 0 -128 127
    /end MEASUREMENT
  /end MODULE
/end PROJECT
A2L
cat >methods.a2l <<'A2L'
/begin PROJECT Methods "Every kind of conversion"
  /begin MODULE Engine ""
    /begin COMPU_METHOD Same "" IDENTICAL "%3.0" "" /end COMPU_METHOD
    /begin COMPU_METHOD Celsius "" LINEAR "%4.1" "°C"
      COEFFS_LINEAR 0.5 -40
      STATUS_STRING_REF SensorState
    /end COMPU_METHOD
    /begin COMPU_METHOD Quarters "raw = 4 x" RAT_FUNC "%4.0" "1/min"
      COEFFS 0 4 0 0 0 1
    /end COMPU_METHOD
    /begin COMPU_METHOD Inverse "raw = 100 / x" RAT_FUNC "%4.1" "ms"
      COEFFS 0 0 100 0 1 0
    /end COMPU_METHOD
    /begin COMPU_METHOD Square "raw = x * x" RAT_FUNC "%4.1" "kW"
      COEFFS 1 0 0 0 0 1
    /end COMPU_METHOD
    /begin COMPU_METHOD Curve "" TAB_INTP "%4.1" "V"
      COMPU_TAB_REF Volts
    /end COMPU_METHOD
    /begin COMPU_METHOD Steps "" TAB_NOINTP "%4.1" ""
      COMPU_TAB_REF Tens
    /end COMPU_METHOD
    /begin COMPU_METHOD Names "" TAB_VERB "%1.0" ""
      COMPU_TAB_REF Gears
    /end COMPU_METHOD
    /begin COMPU_METHOD Ranges "" TAB_VERB "%1.0" ""
      COMPU_TAB_REF Loads
    /end COMPU_METHOD
    /begin COMPU_METHOD Arithmetic "" FORM "%4.1" ""
      /begin FORMULA "X1 * 2 + sqrt(X1)" /end FORMULA
    /end COMPU_METHOD
    /begin COMPU_METHOD Bits "" FORM "%4.1" ""
      /begin FORMULA "X1 & 15" /end FORMULA
    /end COMPU_METHOD
    /begin COMPU_TAB Volts "" TAB_INTP 3
      0 100 10 50 20 0
      DEFAULT_VALUE_NUMERIC -273
    /end COMPU_TAB
    /begin COMPU_TAB Tens "" TAB_NOINTP 2
      1 10 2 20
    /end COMPU_TAB
    /begin COMPU_VTAB SensorState "" TAB_VERB 1
      255 "sensor broken"
      DEFAULT_VALUE "sound"
    /end COMPU_VTAB
    /begin COMPU_VTAB Gears "" TAB_VERB 2
      0 "neutral" 1 "drive"
      DEFAULT_VALUE "unknown"
    /end COMPU_VTAB
    /begin COMPU_VTAB_RANGE Loads "" 2
      0 50 "part load" 50 100 "full load"
    /end COMPU_VTAB_RANGE
    /begin MEASUREMENT Counter "" UBYTE Same 1 0 0 255 /end MEASUREMENT
    /begin MEASUREMENT Temperature "" UBYTE Celsius 1 0 -40 87 /end MEASUREMENT
    /begin MEASUREMENT Speed "" UWORD Quarters 1 0 0 8000 /end MEASUREMENT
    /begin MEASUREMENT Period "" UBYTE Inverse 1 0 0 100 /end MEASUREMENT
    /begin MEASUREMENT Power "" UBYTE Square 1 0 0 16 /end MEASUREMENT
    /begin MEASUREMENT Voltage "" UBYTE Curve 1 0 0 100 /end MEASUREMENT
    /begin MEASUREMENT Step "" UBYTE Steps 1 0 0 20 /end MEASUREMENT
    /begin MEASUREMENT Gear "" UBYTE Names 1 0 0 1 /end MEASUREMENT
    /begin MEASUREMENT Load "" FLOAT32_IEEE Ranges 1 0 0 100 /end MEASUREMENT
    /begin MEASUREMENT Flow "" UBYTE Arithmetic 1 0 0 600 /end MEASUREMENT
    /begin MEASUREMENT Strange "" UBYTE Bits 1 0 0 15 /end MEASUREMENT
  /end MODULE
/end PROJECT
A2L
cp a2l/engine.a2l old.a2l
sed 's/0xC0001000/0xC0001004/; s/FRAME Fast/FRAME Slow/; /begin BLOB/,/end BLOB/d' old.a2l >new.a2l
cat >one-line.a2l <<'A2L'
/begin PROJECT p ""
  /begin MODULE m ""
/begin MEASUREMENT m "" UBYTE NO_COMPU_METHOD 0 0 0 255 ECU_ADDRESS 0x51A50 /end MEASUREMENT
  /end MODULE
/end PROJECT
A2L
cp one-line.a2l engine.a2l
mkdir split
cat >split/main.a2l <<'A2L'
/begin PROJECT Split "a file in parts"
  /include "parts\modules.a2l"
/end PROJECT
A2L
mkdir split/parts parts
printf '/begin MODULE Engine ""\n/include objects.a2l\n/end MODULE' >split/parts/modules.a2l
cat >parts/objects.a2l <<'A2L'
/begin MEASUREMENT EngineSpeed "" UWORD NO_COMPU_METHOD 1 0 0 8000
  ECU_ADDRESS 0x1000
  BIT_MASK 0xFF
/end MEASUREMENT
A2L
sed '3s/.*/  UNHEARD_OF 1/' parts/objects.a2l >fragment.a2l
cp a2l/engine.a2l mixed/
cp a2l/typo.a2l 'mixed/R&D|1.a2l'
cp "$cases/messages/fail_encoding.a2l" mixed/encoding.a2l
ln -s nowhere mixed/gone.a2l # is found, but cannot be opened
cp "$cases/lines/ok_latin1_bytes_in_text.a2l" latin1.a2l
cp "$cases/lines/warn_byte_order_mark_before_keyword.a2l" bom.a2l
mkdir raw
cp "$cases/lines/warn_tab_between_keyword_and_value.a2l" raw/tabs.a2l
cp "$cases/messages/fail_encoding.a2l" raw/encoding.a2l
cp "$cases/blocks/ok_list_entries_before_end_are_lost.a2l" raw/list.a2l
cp "$root/docs/json.schema.json" docs/
printf '\xFF\xFEA\0S\0A\0P\0002\0_\0V\0E\0R\0S\0I\0O\0N\0 \0001\0 \0007\0001\0\n\0' >utf16.a2l

# packages <kind> <block>: the packages that the block needs beyond a plain system
packages() {
  local tool
  case $1 in
    python) echo python3 ;;
    javascript) echo nodejs ;;
  esac
  for tool in make jq parallel; do
    if grep -qE "(^|[ |(])$tool( |\$)" "$2"; then echo "$tool"; fi
  done
  if grep -q '^import jsonschema' "$2"; then echo python3-jsonschema; fi
}

# is_there <package>: whether what the package brings is installed, by whatever means
is_there() {
  case $1 in
    nodejs) command -v node ;;
    python3-jsonschema) python3 -c 'from jsonschema import Draft202012Validator' ;;
    *) command -v "$1" ;;
  esac >/dev/null 2>&1
}

# run <kind> <block>
run() {
  case $1 in
    sh) sh "$2" ;;
    python) python3 "$2" ;;
    javascript) node "$2" ;;
  esac
}

passed=0 failed=0 skipped=0
finish_block() { # compares what the last block printed with what the page shows, if it does
  [[ -n $title ]] || return 0
  if [[ $code != "$wanted_code" ]]; then
    printf 'FAILED: %s: exit code %s in place of %s\n' "$title" "$code" "$wanted_code"
    cat output errors
    failed=$((failed + 1))
  elif [[ -n ${1-} ]] && ! diff -u --label "the page" --label "the recipe" "$1" output; then
    printf 'FAILED: %s: it prints something else than the page shows\n' "$title"
    cat errors
    failed=$((failed + 1))
  else
    passed=$((passed + 1))
  fi
  title=
}

# handle <title> <kind> <exit code> <block>
title='' code=0 wanted_code=0
handle() {
  if [[ $2 == text ]]; then
    finish_block "$4"
    return
  fi
  finish_block
  case $2 in
    make)
      cp "$4" Makefile
      return
      ;;
    sh | python | javascript) ;;
    *) return ;; # not to be run
  esac
  if grep -q a2lmend "$4" && [[ ! -x $programs/a2lmend ]]; then
    printf 'skipped: %s: a2lmend is not built\n' "$1"
    skipped=$((skipped + 1))
    return
  fi
  local package
  for package in $(packages "$2" "$4"); do
    if [[ $needs != *"\`$package\`"* ]]; then
      printf 'FAILED: %s: the section does not say that it needs %s\n' "$1" "$package"
      failed=$((failed + 1))
      return
    elif ! is_there "$package"; then
      printf 'skipped: %s: %s is not installed\n' "$1" "$package"
      skipped=$((skipped + 1))
      return
    fi
  done
  title=$1 wanted_code=$3 code=0
  run "$2" "$4" >output 2>errors || code=$?
}

# The blocks of a page, one after the other.
for page in recipes.md mending.md json.md; do
  heading='' kind='' exit_code=0 number=0 needs='' in_needs=''
  while IFS= read -r line; do
    number=$((number + 1))
    if [[ -n $kind ]]; then
      if [[ $line == '```' ]]; then
        handle "$page: $heading (line $number)" "$kind" "$exit_code" block
        kind='' exit_code=0
      else
        printf '%s\n' "$line" >>block
      fi
    elif [[ $line =~ ^\`\`\`([a-z]*)$ ]]; then
      kind=${BASH_REMATCH[1]:-none}
      : >block
    elif [[ $line =~ ^\<!--\ exit\ code\ ([0-9]+)\ --\>$ ]]; then
      exit_code=${BASH_REMATCH[1]}
    elif [[ $line == '#'* ]]; then
      heading=${line##*# } needs='' in_needs=''
    elif [[ -z $line ]]; then
      in_needs=
    elif [[ -n $in_needs || $line =~ (^|\ )Needs(\ |$) ]]; then
      needs+=${line##*Needs} in_needs=yes
    fi
  done <"$root/docs/$page"
  finish_block
done

echo "$passed recipes passed, $failed failed, $skipped skipped"
((failed == 0 && passed > 0)) && [[ -z $all || $skipped == 0 ]]
