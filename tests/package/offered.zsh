#!/usr/bin/env -S zsh -f
# offered.zsh PREFIX ARGUMENTS: what zsh offers for the last of the program's arguments, a word a line. It does
# so in the line editor only: a shell of its own begins with that line, completes it and leaves. What zsh found in all
# its files it keeps in the installation, for the next word.
zmodload zsh/zpty
list=$(mktemp) || exit

compadd() {
  if (( ! $argv[(I)-[ADO]] )); then
    local -a offered
    builtin compadd -O offered "$@"
    print -rl -- $offered >>$list
  fi
  builtin compadd "$@"
}
zle-line-init() {
  BUFFER=$line CURSOR=$#line
  zle list-choices
  exit
}

zpty shell zsh -f -i
zpty -w shell "fpath=(${(q)1}/share/zsh/site-functions \$fpath) line=${(q)1}/bin/velmora\ ${(q)2} list=$list
$(functions compadd zle-line-init)
autoload -Uz compinit && compinit -u -d ${(q)1}/zcompdump; zle -N zle-line-init"
while zpty -r shell screen; do done
cat $list
rm $list
