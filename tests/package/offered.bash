#!/usr/bin/env bash
# offered.bash PREFIX ARGUMENTS: what bash offers for the last of the program's arguments, a word a line.
source "$1/share/bash-completion/completions/velmora"
read -ra COMP_WORDS <<<"$1/bin/velmora $2"
[[ -n $2 && $2 != *" " ]] || COMP_WORDS+=("")
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_velmora
printf '%s\n' "${COMPREPLY[@]}"
