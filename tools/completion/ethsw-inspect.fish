# SPDX-License-Identifier: MIT
# Completion of ethsw-inspect for fish. Source it, or install it as
# /usr/share/fish/vendor_completions.d/ethsw-inspect.fish.

# The words in front of the cursor that are no options, without the program: verb, type, files.
function __ethsw_inspect_words
    set -l with_value --color --memory-limit --input --framing --output --bytes --u64
    set -l skip no
    for word in (commandline --tokenize --cut-at-cursor)[2..]
        if test $skip = yes
            set skip no
        else if contains -- $word $with_value
            set skip yes
        else if not string match --quiet -- '-?*' $word
            echo $word
        end
    end
end

# Whether the cursor is behind this many words, of which the first is one of the verbs.
function __ethsw_inspect_is_at
    set -l words (__ethsw_inspect_words)
    test (count $words) = $argv[1]; and contains -- $words[1] $argv[2..]
end

function __ethsw_inspect_verb_is
    contains -- (__ethsw_inspect_words)[1] $argv
end

function __ethsw_inspect_has_no_verb
    test (count (__ethsw_inspect_words)) = 0
end

function __ethsw_inspect_types
    set -l program (commandline --tokenize --cut-at-cursor)[1]
    $program list --names 2>/dev/null
end

set -l c complete --command ethsw-inspect
$c --no-files

$c --condition __ethsw_inspect_has_no_verb --arguments decode --description 'Show a message as JSON or as a tree'
$c --condition __ethsw_inspect_has_no_verb --arguments encode --description 'Make a message from JSON'
$c --condition __ethsw_inspect_has_no_verb --arguments dump --description 'Show a message byte by byte'
$c --condition __ethsw_inspect_has_no_verb --arguments diff --description 'Compare two messages'
$c --condition __ethsw_inspect_has_no_verb --arguments check --description 'Tell whether a message is canonical'
$c --condition __ethsw_inspect_has_no_verb --arguments guess --description 'Tell which types it may be of'
$c --condition __ethsw_inspect_has_no_verb --arguments list --description 'Name the record types'
$c --condition __ethsw_inspect_has_no_verb --arguments show --description 'Describe a record type'
$c --condition __ethsw_inspect_has_no_verb --arguments pairs --description 'Tell which answer belongs to which request'
$c --condition __ethsw_inspect_has_no_verb --arguments proto --description 'Write the schema as a .proto file'

$c --condition '__ethsw_inspect_is_at 1 decode encode dump diff check show proto' --arguments '(__ethsw_inspect_types)'
$c --condition '__ethsw_inspect_is_at 1 guess' --force-files
$c --condition '__ethsw_inspect_is_at 2 decode encode dump diff check' --force-files
$c --condition '__ethsw_inspect_is_at 3 diff' --force-files

$c --long-option help --short-option h --description 'Tell about the options'
$c --condition __ethsw_inspect_has_no_verb --long-option version --description 'Tell the version'
$c --condition 'not __ethsw_inspect_verb_is encode proto' --long-option color --no-files --require-parameter --arguments 'auto always never' --description 'Colours'
$c --condition 'not __ethsw_inspect_verb_is list show pairs proto' --long-option memory-limit --no-files --require-parameter --description 'MiB that a record may take'
$c --condition '__ethsw_inspect_verb_is decode dump diff check guess' --long-option input --no-files --require-parameter --arguments 'raw hex xxd base64 c' --description 'What the input is'
$c --condition '__ethsw_inspect_verb_is decode encode dump check guess' --long-option framing --no-files --require-parameter --arguments 'varint u32le u32be' --description 'Many messages, each behind its length'
$c --condition '__ethsw_inspect_verb_is decode' --long-option output --no-files --require-parameter --arguments 'json ndjson tree' --description 'What to write'
$c --condition '__ethsw_inspect_verb_is encode' --long-option output --no-files --require-parameter --arguments 'raw hex c' --description 'What to write'
$c --condition '__ethsw_inspect_verb_is decode' --long-option ndjson --description 'JSON in one line'
$c --condition '__ethsw_inspect_verb_is decode' --long-option tree --description 'An aligned tree'
$c --condition '__ethsw_inspect_verb_is decode' --long-option u64 --no-files --require-parameter --arguments 'string number' --description 'How JSON has 64-bit numbers'
$c --condition '__ethsw_inspect_verb_is decode encode' --long-option bytes --no-files --require-parameter --arguments 'base64 hex' --description 'How JSON has byte strings'
$c --condition '__ethsw_inspect_verb_is encode' --long-option segments --description 'The pieces that the library reports'
$c --condition '__ethsw_inspect_verb_is encode' --long-option in-place --description 'The same, with byte strings in place'
$c --condition '__ethsw_inspect_verb_is dump' --long-option all-bytes --description 'Do not cut long strings short'
$c --condition '__ethsw_inspect_verb_is list' --long-option names --description 'Names, and nothing else'
