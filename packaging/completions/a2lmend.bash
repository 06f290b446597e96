# SPDX-License-Identifier: MIT
# bash completion: a2lmend [options] <A2L file> [<file to write>]

_a2lmend() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} IFS=$'\n' i files=0
  COMPREPLY=()
  case $before in
    -I)
      compopt -o filenames 2>/dev/null
      COMPREPLY=($(compgen -d -- "$word"))
      return
      ;;
    --format)
      COMPREPLY=($(compgen -W $'text\njson\nsarif' -- "$word"))
      return
      ;;
    --encoding)
      COMPREPLY=($(compgen -W $'ISO-8859-1\nISO-8859-15\nwindows-1252\nUTF-8' -- "$word"))
      return
      ;;
  esac
  if [[ $word == -?* ]]; then
    COMPREPLY=($(compgen -W $'-I\n--encoding\n--format\n--allow-outside\n--quiet\n--help\n--version' \
      -- "$word"))
    return
  fi
  # The files before this word.
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      -I | --encoding | --format) ((++i)) ;;
      -?*) ;;
      *) ((++files)) ;;
    esac
  done
  compopt -o filenames 2>/dev/null
  case $files in
    0) COMPREPLY=($(compgen -d -- "$word"; compgen -f -X '!*.[aA]2[lL]' -- "$word")) ;;
    1) COMPREPLY=($(compgen -f -- "$word")) ;;
  esac
}
complete -F _a2lmend a2lmend
