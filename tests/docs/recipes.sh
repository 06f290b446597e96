#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# usage: tests/docs/recipes.sh [--all] [<folder of a2l2json>]
#
# Runs the code blocks of docs/recipes.md and docs/json.md as they stand, in their order, in one
# folder, with a2l2json from the given folder (build/release unless another one is given) in the
# search path. A block must end with the exit code 0, or with the one that a comment of the form
# <!-- exit code 1 --> before it gives; where a block of the kind "text" follows it, it must print
# that. A block whose tool is not installed is skipped; with --all it has failed.
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
    /begin MEASUREMENT Coolant "" UBYTE Celsius 1 0 -40 130
      ECU_ADDRESS 0xC0002000
      BIT_MASK 0xFF
    /end MEASUREMENT
    /begin MEASUREMENT CoolantLevel "" UBYTE NO_COMPU_METHOD 1 0 0 255
      ECU_ADDRESS 0xC0002001
    /end MEASUREMENT
  /end MODULE
/end PROJECT
A2L
cp a2l/engine.a2l mixed/
cp a2l/typo.a2l 'mixed/R&D|1.a2l'
cp "$cases/messages/fail_encoding.a2l" mixed/encoding.a2l
ln -s nowhere mixed/gone.a2l # is found, but cannot be opened
cp "$cases/lines/ok_latin1_bytes_in_text.a2l" latin1.a2l
cp "$cases/lines/warn_byte_order_mark_before_keyword.a2l" bom.a2l
cp "$cases/lines/warn_tab_between_keyword_and_value.a2l" tabs.a2l
cp "$cases/messages/fail_encoding.a2l" encoding.a2l
cp "$cases/blocks/ok_list_entries_before_end_are_lost.a2l" list.a2l
cp "$root/docs/json.schema.json" docs/
printf '\xFF\xFEA\0S\0A\0P\0002\0_\0V\0E\0R\0S\0I\0O\0N\0 \0001\0 \0007\0001\0\n\0' >utf16.a2l

# missing <block>: the tool that the block needs and that is not there, if any
missing() {
  local tool
  for tool in find xargs make iconv expand jq parallel; do
    if grep -qE "(^|[ |(])$tool( |$)" "$1" && ! command -v "$tool" >/dev/null; then
      echo "$tool"
      return
    fi
  done
  if grep -q '^import jsonschema' "$1" && ! python3 -c 'from jsonschema import Draft202012Validator' 2>/dev/null; then
    echo 'the Python package jsonschema'
  fi
}

# run <kind> <block>
run() {
  case $1 in
    sh) sh "$2" ;;
    python) python3 "$2" ;;
    javascript) node "$2" ;;
  esac
}
tool_of() {
  case $1 in
    sh) echo sh ;;
    python) echo python3 ;;
    javascript) echo node ;;
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
  local tool
  tool=$(command -v "$(tool_of "$2")" >/dev/null || tool_of "$2")
  tool=${tool:-$(missing "$4")}
  if [[ -n $tool ]]; then
    printf 'skipped: %s: %s is not installed\n' "$1" "$tool"
    skipped=$((skipped + 1))
    return
  fi
  title=$1 wanted_code=$3 code=0
  run "$2" "$4" >output 2>errors || code=$?
}

# The blocks of a page, one after the other.
for page in recipes.md json.md; do
  heading='' kind='' exit_code=0 number=0
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
      heading=${line##*# }
    fi
  done <"$root/docs/$page"
  finish_block
done

echo "$passed recipes passed, $failed failed, $skipped skipped"
((failed == 0 && passed > 0)) && [[ -z $all || $skipped == 0 ]]
