# SPDX-License-Identifier: MIT
# Completes the command line of ovisto-cli in fish. Made from the options of the program; do not edit.

# Whether the word at the cursor belongs to the command $argv[1], '' for none yet; with $argv[2] also, whether it is the
# argument of this number, or with "more" a later one.
function __ovisto_cli_at
    set -l command ''
    set -l place 1
    set -l option
    for word in (commandline -opc)[2..]
        if test -n "$option"
            set option
        else if contains -- $word $__ovisto_cli_with_value
            set option $word
        else if not string match -q -- '-?*' $word
            test -n "$command"; and set place (math $place + 1)
            test -z "$command"; and set command $word
        end
    end
    test "$command" = "$argv[1]"; or return 1
    test (count $argv) -eq 1; and return 0
    test -z "$option"; or return 1
    test $place -eq $argv[2]; or begin
        test (count $argv) -eq 3; and test $place -gt $argv[2]
    end
end

# The nodes for which $argv[1] stands among their uses, each with its label.
function __ovisto_cli_nodes
    string replace -rf "^[a-z]*$argv[1][a-z]* " '' -- $__ovisto_cli_table
end

# The files with one of the extensions $argv, and folders; all files where there are none.
function __ovisto_cli_files
    set -l typed (commandline -ct | string replace -r '^--[a-z-]+=' '')
    set -l all (complete -C "__fish_command_without_completions $typed")
    set -l some (string match -rie "(/|\.("(string join '|' $argv)"))(\t.*)?\$" -- $all)
    if test (count $some) -gt 0
        printf '%s\n' $some
    else if test (count $all) -gt 0
        printf '%s\n' $all
    end
end

# The choices $argv after those that are already in the word, with commas between them.
function __ovisto_cli_choices
    set -l chosen (commandline -ct | string replace -r '^--[a-z-]+=' '' | string replace -rf '[^,]*$' '')
    for choice in $argv
        contains -- $choice (string split , -- $chosen); or echo $chosen$choice
    end
end

complete -c ovisto-cli -f

@TABLES@
