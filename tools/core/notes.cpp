// SPDX-License-Identifier: MIT
#include "tools/core/notes.hpp"

namespace inspect {

std::vector<Note> Notes::list() const
{
    std::vector<Note> found;
    for (uint32_t i = 0; i < kNoteCount; i++)
        if (has(static_cast<Note>(i)))
            found.push_back(static_cast<Note>(i));
    return found;
}

std::string_view note_words(Note note)
{
    static constexpr std::string_view words[kNoteCount] = {
        "over-long varint",
        "bits dropped that do not fit",
        "a bool that is not 0 or 1",
        "unknown field, skipped",
        "claims more than there is: the record ends here",
        "the position wraps around: reading goes on further back",
        "met again, the last one wins",
        "replaces what the first one held",
        "out of order",
        "packed, which is never read",
        "the list was interrupted",
        "another wire type, read as if it were right",
        "a zero byte: C reads the text up to it",
        "not UTF-8",
    };
    return words[static_cast<uint32_t>(note)];
}

} // namespace inspect
