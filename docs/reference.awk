# SPDX-License-Identifier: MIT
# What Doxygen reads in place of the public headers and the documents: the same lines; in headers
# with the comments that say the same for every record type and would only be in the way of those
# who read the headers, in documents without the links that lead nowhere in the reference.

# The operations of a type are told once; each type leads there.
function operations(name, entity,    links, verbs, i) {
    split("encode_ext decode_ext duplicate free_ext", verbs, " ")
    for (i = 1; i <= 4; i++)
        links = links (i > 1 ? ", " : "") "@ref T_" verbs[i] " \"" name "_" verbs[i] "()\""
    return "/** " entity " " name " @nl @see " links " */"
}

# Pages that are in the reference stay linked, without the place in the page; so do other sites. The
# contract is a page of its own there. Everything else is a file of the source tree, and is named.
function link(text, target) {
    if (target ~ /^https?:/)
        return "[" text "](" target ")"
    if (target ~ /runtime\/record\.h$/)
        return "@ref operations \"" text "\""
    sub(/#.*/, "", target)
    if (target ~ /\.md$/ && target !~ /(^|\/)(tests|bench|porting)\//)
        return "[" text "](" target ")"
    return text
}

function with_links(line,    out, at, middle) {
    while (match(line, /\[[^][]+\]\([^()]+\)/)) {
        if (RSTART > 1 && substr(line, RSTART - 1, 1) == "!") { # a picture
            out = out substr(line, 1, RSTART + RLENGTH - 1)
        } else {
            at = substr(line, RSTART, RLENGTH)
            middle = index(at, "](")
            out = out substr(line, 1, RSTART - 1) \
                link(substr(at, 2, middle - 2), substr(at, middle + 2, RLENGTH - middle - 2))
        }
        line = substr(line, RSTART + RLENGTH)
    }
    return out line
}

FILENAME ~ /\.md$/ {
    if (/^```/)
        in_example = !in_example
    print in_example ? $0 : with_links($0)
    next
}

/^typedef struct [A-Za-z0-9_]+ [A-Za-z0-9_]+;$/ {
    has_no_structure[$3] = 1
}

/^TARN_DECLARE_OPERATIONS\([A-Za-z0-9_]+\);$/ {
    name = substr($0, index($0, "(") + 1)
    sub(/\);$/, "", name)
    print operations(name, (name in has_no_structure) ? "@typedef" : "@struct")
    next
}

# In C++ likewise: what is made of these lines has no name of its own for a type.
/^TARN_OPERATIONS\([A-Za-z0-9_]+, [a-z]+\);$/ {
    print ""
    next
}

/^    unsigned has_[a-z0-9_]+ : 1;$/ {
    print $0 " /**< Presence flag of #" substr($2, 5) ". */"
    next
}

{ print }
