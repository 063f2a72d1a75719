# SPDX-License-Identifier: MIT
# Reads lines and prints what the completion offers for each, and then END. A shell on a terminal of
# its own is sent the line and a TAB, and writes into a file what it would show.
# Usage: complete.zsh ROOT FILE
zmodload zsh/zpty
export TERM=dumb OFFERS=$2
zpty -b shell zsh -f -i

# waits: until the shell has written END.
waits() {
    local said tries=0
    until [[ -e $OFFERS && $(<$OFFERS) == *END ]] || ((++tries > 1000)); do
        # What it says is taken from it, or it would wait for that.
        zpty -r -t shell said || sleep 0.02
    done
}

# With some options compadd does not add anything, but is asked for something.
for line in "fpath=(${(q)1}/tools/completion \$fpath)" 'autoload -Uz compinit && compinit -D -u' \
    'compadd() {
        local -a found
        if [[ ${@[1,(i)(-|--)]} != *-(O|A|D)\ * ]]; then
            builtin compadd -A found "$@"
            (( $#found )) && print -rl -- $found >>$OFFERS
        fi
        builtin compadd "$@"
    }' \
    'offer() { zle list-choices; zle kill-whole-line; print END >>$OFFERS }' \
    "zle -N offer && bindkey '^I' offer" \
    'print END >$OFFERS'; do
    zpty -w shell $line
done
waits
while IFS= read -r line; do
    rm -f $OFFERS
    # Without a line break, behind which it would run.
    zpty -w -n shell $line$'\t'
    waits
    cat $OFFERS
done
