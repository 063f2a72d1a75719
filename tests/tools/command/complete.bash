# SPDX-License-Identifier: MIT
# Prints what the completion offers. Usage: complete.bash ROOT LINE
# shellcheck shell=bash
. "$1/tools/completion/ethsw-inspect.bash"

# As the shell takes it apart: "=" is a word.
read -r -a COMP_WORDS <<<"${2//=/ = }"
[[ $2 == *' ' ]] && COMP_WORDS+=('')
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_ethsw_inspect ethsw-inspect "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
[ ${#COMPREPLY[@]} = 0 ] || printf '%s\n' "${COMPREPLY[@]}"
