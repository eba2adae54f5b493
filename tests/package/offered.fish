#!/usr/bin/env -S fish --no-config
# offered.fish PREFIX ARGUMENTS: what fish offers for the last of the program's arguments, a word a line.
source $argv[1]/share/fish/vendor_completions.d/velmora.fish
complete -C "$argv[1]/bin/velmora $argv[2]" | string replace -r '\t.*' ''
