# Completion of velmora's commands and options in fish: offers what the program itself says it takes.
function __velmora_offers
    set -l words (commandline -opc)
    set -l program (string replace -r '^~' $HOME -- $words[1])
    set -l command (string match -rv '^(-|$)' -- "$words[2]")
    set -l help ($program $command --help 2>/dev/null); or return
    # A view that is named takes a part of the options.
    if test "$command" = draw
        for view in (string replace -fr '^  ([a-z]+) .*' '$1' -- $help)
            contains -- $view $words; and set help ($program draw $view --help)
        end
    end

    if contains -- $words[-1] --city --tz
        $program --complete (string sub -s 3 -- $words[-1]) (commandline -ct | string trim -c '"\'' | string unescape)
        return
    end

    # An option that takes a value shows its name in capitals; one that takes a few words tells them when it is
    # given another.
    if contains -- $words[-1] (string replace -fr '^  (--\S+) [A-Z].*' '$1' -- $help)
        $program $command $words[-1] '?' --help 2>&1 |
            string replace -fr '.*is not known; accepted: ' '' | string replace -ar ',? (or )?' \n
        return
    end
    string replace -fr '^  ([a-z]+) +(.*)' '$1\t$2' -- $help
    string replace -fr '^  (--\S+)( [A-Z]\S*)? +(.*)' '$1\t$3' -- $help[(contains -i Options -- $help)..]
end
complete -c velmora -f -a '(__velmora_offers)'
complete -c velmora -n '__fish_seen_subcommand_from draw' -s o -l output -rF
complete -c velmora -n '__fish_seen_subcommand_from calendar' -l ics -rF
