# SPDX-License-Identifier: MIT
# What the tests of the command share. Each is called with the root of the tree, and the command with
# what runs it behind that.
# shellcheck shell=bash
set -uo pipefail
export LC_ALL=C
unset NO_COLOR

root=$1
command=("${@:2}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
checks=0
wrong=0

inspect() {
    "${command[@]}" "$@"
}

# Runs the command; leaves $status, and what it has written in the files out and err. With "< file"
# behind it, it reads that; else nothing.
run() {
    inspect "$@" >"$work/out" 2>"$work/err"
    status=$?
}

# is WHAT ACTUAL EXPECTED
is() {
    checks=$((checks + 1))
    [ "$2" = "$3" ] && return
    wrong=$((wrong + 1))
    printf 'WRONG: %s\n  is:        %q\n  should be: %q\n' "$1" "${2:0:1000}" "${3:0:1000}"
}

# holds WHAT COMMAND...: the command succeeds.
holds() {
    checks=$((checks + 1))
    "${@:2}" >"$work/held" 2>&1 && return
    wrong=$((wrong + 1))
    printf 'WRONG: %s\n' "$1"
    sed 's/^/  /' "$work/held" | head -20
}

# Puts a program called ethsw-inspect in front of all others, for tests that type commands.
put_in_path() {
    mkdir "$work/bin"
    {
        echo '#!/bin/sh'
        echo "exec $(printf '%q ' "${command[@]}")\"\$@\""
    } >"$work/bin/ethsw-inspect"
    chmod +x "$work/bin/ethsw-inspect"
    PATH=$work/bin:$PATH
}

# needs PROGRAM...: skips the test where one of them is missing.
needs() {
    local program
    for program in "$@"; do
        command -v "$program" >/dev/null || {
            echo "not run, there is no $program"
            exit 77
        }
    done
}

# The last line of every test.
finish() {
    echo "$checks checks, $wrong wrong"
    [ "$checks" -gt 0 ] && [ "$wrong" = 0 ]
    exit
}
