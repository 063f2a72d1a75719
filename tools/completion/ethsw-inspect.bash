# SPDX-License-Identifier: MIT
# Completion of ethsw-inspect for bash. Source it, or install it as
# /usr/share/bash-completion/completions/ethsw-inspect.

_ethsw_inspect_verbs='decode encode dump diff check guess list show pairs proto'

# What may stand behind an option. $2 is the verb.
_ethsw_inspect_values() {
    case $1 in
    --color) echo auto always never ;;
    --input) echo raw hex xxd base64 c ;;
    --framing) echo varint u32le u32be ;;
    --bytes) echo base64 hex ;;
    --u64) echo string number ;;
    --output) [ "$2" = encode ] && echo raw hex c || echo json ndjson tree ;;
    esac
}

_ethsw_inspect_options() {
    local source='--input --framing --color --memory-limit'
    case $1 in
    '') echo --help --version --color --memory-limit ;;
    decode) echo --help --output --ndjson --tree --bytes --u64 "$source" ;;
    encode) echo --help --output --framing --segments --in-place --bytes --memory-limit ;;
    dump) echo --help --all-bytes "$source" ;;
    diff) echo --help --input --color --memory-limit ;;
    check | guess) echo --help "$source" ;;
    list) echo --help --names --color ;;
    show | pairs) echo --help --color ;;
    proto) echo --help ;;
    esac
}

# The arguments of a verb, one after another.
_ethsw_inspect_arguments() {
    case $1 in
    decode | encode | dump | check) echo type file ;;
    diff) echo type file file ;;
    guess) echo file ;;
    show | proto) echo type ;;
    esac
}

_ethsw_inspect() {
    local program=${1/#\~/$HOME} word=${COMP_WORDS[COMP_CWORD]} verb='' option='' position=0 each
    local -a wanted
    # An "=" between an option and its value is a word of its own.
    for each in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $each in
        =) ;;
        --color | --memory-limit | --input | --framing | --output | --bytes | --u64) option=$each ;;
        -?*) option= ;;
        *)
            if [ -n "$option" ]; then
                option=
            elif [ -z "$verb" ]; then
                verb=$each
            else
                position=$((position + 1))
            fi
            ;;
        esac
    done
    [ "$word" = = ] && word=

    COMPREPLY=()
    if [ -n "$option" ]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_ethsw_inspect_values "$option" "$verb")" -- "$word")
        return
    fi
    if [[ $word == -?* || ($word == - && -z $verb) ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_ethsw_inspect_options "$verb")" -- "$word")
        return
    fi
    if [ -z "$verb" ]; then
        mapfile -t COMPREPLY < <(compgen -W "$_ethsw_inspect_verbs" -- "$word")
        return
    fi
    read -r -a wanted < <(_ethsw_inspect_arguments "$verb")
    case ${wanted[position]-} in
    type)
        mapfile -t COMPREPLY < <(compgen -W "$("$program" list --names 2>/dev/null)" -- "$word")
        ;;
    file)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        ;;
    esac
}

complete -F _ethsw_inspect ethsw-inspect
