#compdef ovisto-cli
# SPDX-License-Identifier: MIT
# Completes the command line of ovisto-cli in zsh. Made from the options of the program; do not edit.

local -a _ovisto_cli_commands _ovisto_cli_table
@TABLES@

_ovisto_cli_photographs() {
    _files -g "*.(#i)(jpg|jpeg)(-.)"
}

# Style sheets: those of the program, $@, and files.
_ovisto_cli_styles() {
    _alternative "names:style sheet of the program:($*)" 'files:file:_files -g "*.(#i)xsl(-.)"'
}

# The nodes for which $1 stands among their uses: by their path, or by a word of the label.
_ovisto_cli_nodes() {
    local row typed=${(Q)PREFIX}
    local -a fields paths texts expl
    for row in $_ovisto_cli_table; do
        fields=("${(@ps:\t:)row}")
        [[ $fields[1] == *$1* ]] || continue
        [[ -z $typed || $typed == /* || ${(L)fields[3]} == *${(L)typed}* ]] || continue
        paths+=("$fields[2]")
        texts+=("$fields[2]  -- $fields[3]")
    done
    _description nodes expl node
    if [[ -n $typed && $typed != /* ]]; then
        compstate[insert]=menu # the paths have nothing in common with what was typed
        compadd -U "$expl[@]" -l -d texts -a paths
    else
        compadd "$expl[@]" -l -d texts -a paths
    fi
}

local curcontext=$curcontext state line
_arguments -C '(- *)'{-h,--help}'[Print the help and exit]' '(- *)--version[Print the versions and exit]' \
    '1:command:->command' '*::argument:->arguments' && return
case $state in
command)
    _describe -t commands command _ovisto_cli_commands
    ;;
arguments)
    curcontext=${curcontext%:*:*}:ovisto-cli-$words[1]:
    _ovisto_cli_arguments $words[1]
    ;;
esac
