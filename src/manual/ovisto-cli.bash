# SPDX-License-Identifier: MIT
# Completes the command line of ovisto-cli in bash. Made from the options of the program; do not edit.

@TABLES@

# Splits the line up to the cursor as the shell would. Sets `words` to the words without their quotation marks, the one
# at the cursor last; `before` to that part of the last one that stands before the $1 characters which a completion
# replaces, and `quote` to the quotation mark that is open there.
_ovisto_cli_split()
{
    local line=${COMP_LINE:0:COMP_POINT} word='' started='' open='' char i
    words=() before='' quote=''
    local start=$((${#line} - $1))
    for ((i = 0; i <= ${#line}; ++i)); do
        if ((i == start)); then
            before=$word quote=$open
        fi
        char=${line:i:1}
        case $open$char in
        \'\' | \"\")
            open='' ;;
        \'?)
            word+=$char ;;
        \"\\)
            [[ ${line:i+1:1} == [\"\\\$\`] ]] && ((++i))
            word+=${line:i:1} ;;
        \"?)
            word+=$char ;;
        \' | \")
            if ((i < ${#line})); then
                open=$char started=1
            fi ;;
        \\)
            ((++i))
            word+=${line:i:1} started=1 ;;
        ' ' | $'\t')
            if [[ $started ]]; then
                words+=("$word")
                word='' started=''
            fi ;;
        ?)
            word+=$char started=1 ;;
        esac
    done
    words+=("$word")
}

# Offers $@, each a whole word without quotation marks: as it must be typed after what stands before it.
_ovisto_cli_offer()
{
    local candidate rest
    for candidate in "$@"; do
        rest=${candidate:${#before}}
        case $quote in
        \')
            rest=${rest//\'/\'\\\'\'} ;;
        '')
            if [[ $rest == *[!A-Za-z0-9_.,/:+=@-]* ]]; then
                if [[ $before ]]; then
                    printf -v rest %q "$rest"
                else
                    rest=\"$rest\"
                fi
            fi ;;
        esac
        COMPREPLY+=("$rest")
    done
}

# Offers the nodes that the command $1 can be asked for, and whose path begins as typed or whose label has the word.
_ovisto_cli_offer_nodes()
{
    local row uses path label paths=() found=() word=${words[-1]}
    for row in "${_ovisto_cli_nodes[@]}"; do
        IFS=$'\t' read -r uses path label <<<"$row"
        [[ $uses == *"${1:0:1}"* ]] || continue
        if [[ $path == "$word"* ]]; then
            paths+=("$path")
        elif [[ $word != /* && ! $before && ${label,,} == *"${word,,}"* ]]; then
            paths+=("$path") found+=("$label: $path")
        fi
    done
    if ((${#found[@]} > 1)); then
        COMPREPLY=("${found[@]}" ' ') # the blank has nothing in common with them, so that what was typed stays
    else
        _ovisto_cli_offer "${paths[@]}"
    fi
}

# Offers the files and folders that begin as the word does; of the files only those with one of the extensions $@, if any
# has one.
_ovisto_cli_offer_files()
{
    local name extension all=() some=()
    while IFS= read -r name; do
        all+=("${name:${#before}}")
        if [[ -d $name || -d ${name/#\~/$HOME} ]]; then
            some+=("${name:${#before}}")
        fi
        for extension in "$@"; do
            if [[ ${name,,} == *."$extension" ]]; then
                some+=("${name:${#before}}")
            fi
        done
    done < <(compgen -f -- "$value")
    compopt -o filenames
    if ((${#some[@]} || $# == 0)); then
        ((${#some[@]} && $#)) && all=("${some[@]}")
    fi
    COMPREPLY+=("${all[@]}")
}

# Offers what the kind $1, with the choices $2, allows for `value`, the end of the word that is the value.
_ovisto_cli_offer_kind()
{
    local choice start=${words[-1]%"$value"} folder
    case $1 in
    file) _ovisto_cli_offer_files ;;
    photograph) _ovisto_cli_offer_files jpg jpeg ;;
    xml) _ovisto_cli_offer_files xml ;;
    folder)
        while IFS= read -r folder; do
            COMPREPLY+=("${folder:${#before}}")
        done < <(compgen -d -- "$value")
        compopt -o filenames ;;
    style)
        _ovisto_cli_offer_files xsl
        for choice in $2; do
            [[ $choice == "$value"* ]] && _ovisto_cli_offer "$start$choice"
        done ;;
    path) _ovisto_cli_offer_nodes "$3" ;;
    choice)
        for choice in $2; do
            [[ $choice == "$value"* ]] && _ovisto_cli_offer "$start$choice"
        done ;;
    choices)
        local chosen=''
        [[ $value == *,* ]] && chosen=${value%,*},
        for choice in $2; do
            [[ $chosen$choice == "$value"* && ,$chosen != *",$choice,"* ]] && _ovisto_cli_offer "$start$chosen$choice"
        done
        compopt -o nospace ;;
    esac
}

_ovisto_cli()
{
    local words before quote value command='' option='' count=0 i word kinds
    COMPREPLY=()
    _ovisto_cli_split ${#2}
    for ((i = 1; i < ${#words[@]} - 1; ++i)); do
        word=${words[i]}
        if [[ $option ]]; then
            option=''
        elif [[ $command && ${_ovisto_cli_values["$command $word"]-} ]]; then
            option=$word
        elif [[ $word == -?* ]]; then
            :
        elif [[ ! $command ]]; then
            command=$word
        else
            ((++count))
        fi
    done
    word=${words[-1]} value=$word
    if [[ ! $option && $word == --*=* ]]; then
        option=${word%%=*} value=${word#*=}
        # The file names that are offered do not have the option before them.
        ((${#before} > ${#option})) && before=${before:$((${#option} + 1))}
        words[-1]=$value
    fi
    if [[ $option ]]; then
        kinds=${_ovisto_cli_values["$command $option"]-}
        _ovisto_cli_offer_kind "${kinds%% *}" "${kinds#* }" "$command"
    elif [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W "${_ovisto_cli_options[${command:--}]-}" -- "$word"))
    elif [[ ! $command ]]; then
        COMPREPLY=($(compgen -W "$_ovisto_cli_commands" -- "$word"))
    else
        kinds=(${_ovisto_cli_arguments[$command]-})
        ((count < ${#kinds[@]})) || count=$((${#kinds[@]} - 1))
        ((count >= 0)) && _ovisto_cli_offer_kind "${kinds[count]}" '' "$command"
    fi
}

complete -F _ovisto_cli ovisto-cli
