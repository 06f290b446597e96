# SPDX-License-Identifier: MIT
# bash completion: a2l2json <A2L file> <JSON file>

_a2l2json() {
  local word=${COMP_WORDS[COMP_CWORD]} IFS=$'\n'
  compopt -o filenames 2>/dev/null
  case $COMP_CWORD in
    1) COMPREPLY=($(compgen -d -- "$word"; compgen -f -X '!*.[aA]2[lL]' -- "$word")) ;;
    2) COMPREPLY=($(compgen -f -- "$word")) ;;
    *) COMPREPLY=() ;;
  esac
}
complete -F _a2l2json a2l2json
