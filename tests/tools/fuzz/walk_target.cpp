// SPDX-License-Identifier: MIT
// Fuzzer: everything that shows a message, on inputs like those of the library's own fuzzers.
#include "tests/fuzz/target.hpp"
#include "tests/tools/fuzz/claims.hpp"
#include "tools/core/check.hpp"
#include "tools/core/diff.hpp"
#include "tools/core/dump.hpp"
#include "tools/core/guess.hpp"
#include "tools/core/json.hpp"
#include "tools/core/tree.hpp"
#include "tools/core/walk.hpp"

#include <algorithm>
#include <map>

namespace fuzz {

namespace {

using inspect::Record;
using inspect::RecordType;
using inspect::require;
using inspect::TameOutput;
using inspect::Verdict;

constexpr size_t kEnough = size_t{1} << 20;

const RecordType &type_of(const Type &type)
{
    static std::map<const Type *, const RecordType *> known;
    const RecordType *&found = known[&type];
    if (!found)
        found = inspect::find_type(type.operations->name);
    return *found;
}

// That the pieces are the message from front to back, as far as there is no backward jump.
class Pieces : public inspect::Visitor {
public:
    explicit Pieces(inspect::Bytes message) : message_(message) {}

    bool visit(const inspect::Piece &piece) override
    {
        const size_t end = piece.offset + piece.bytes.size();
        require(end <= message_.size(), "a piece is in the message");
        require(piece.bytes.data() == message_.data() + piece.offset, "its bytes are there");
        require(piece.offset == end_ || jumped_, "it is behind the one before it");
        require(!piece.bytes.empty() || piece.notes.has(inspect::Note::past_the_end),
                "only what is missing is empty");
        jumped_ = piece.notes.has(inspect::Note::backward_jump);
        end_ = end;
        return true;
    }

    void enter(const RecordType &, const std::vector<inspect::Step> &path) override
    {
        require(!path.empty(), "an embedded record has a path");
        depth_++;
    }
    void leave() override
    {
        require(depth_ > 0, "what is left was entered");
        depth_--;
    }
    size_t depth() const { return depth_; }

private:
    inspect::Bytes message_;
    size_t end_ = 0;
    size_t depth_ = 0;
    bool jumped_ = false;
};

void require_agreement(const Record &record, inspect::Bytes message, int32_t result)
{
    inspect::WalkOptions options;
    if (result == WIRE_ERR_NO_MEMORY)
        options.blocks = record.arena().blocks();
    Pieces pieces(message);
    const Verdict verdict = walk(record.type(), message, pieces, options);
    // Where following it would take long there is a reason, but no end.
    if (verdict.result == WIRE_OK && !verdict.reason.empty())
        return;
    require(verdict.result == result, "the walk ends as decoding does");
    require(verdict.offset <= message.size(), "it ends in the message");
    require((result == WIRE_OK) == verdict.reason.empty(), "an error has a reason");
    require(result != WIRE_OK || pieces.depth() == 0, "all that was entered was left");
    inspect::require_tame(verdict.text());
    require(explain(record, message, result).result == result, "it is explained");
}

// Which also tells whether JSON can say all that the record has.
void require_json(const Record &record, bool fits)
{
    std::string json;
    write_json(record.view(), {}, {}, [&json](std::string_view text) { json += text; });
    inspect::require_tame(json);
    if (!fits)
        return;
    Record again(record.type(), 16 * kEnough);
    inspect::read_json(json, {}, again);
    require(record.encode() == again.encode(), "JSON gives the same record again");
}

void show(const Record &record, inspect::Bytes message, int32_t result, size_t memory)
{
    TameOutput out;
    inspect::DumpOptions options;
    options.memory_limit = memory;
    require(write_dump(record.type(), message, options, out.sink()).result == result,
            "a dump tells how decoding ends");
    const Verdict verdict = explain(record, message, result);
    write_tree(record.view(), inspect::Palette(false), verdict.path, out.sink());
    const Record empty(record.type(), memory);
    write_diff(empty.view(), empty.view(), inspect::Palette(false), out.sink());
    write_diff(empty.view(), record.view(), inspect::Palette(false), out.sink());
}

void check(const Record &record, inspect::Bytes message, int32_t result, size_t memory)
{
    const inspect::Check checked = inspect::check(record.type(), message, memory);
    require(checked.verdict.result == result, "a check tells how decoding ends");
    for (const inspect::Finding &finding : checked.findings) {
        inspect::require_tame(finding.path);
        inspect::require_message(finding.text);
        require(finding.offset.value_or(0) <= message.size(), "a finding is in the message");
    }
    if (result != WIRE_OK)
        return;
    require(checked.is_canonical == std::ranges::equal(record.encode(), message),
            "canonical is what is encoded as it was");
    require_json(record, checked.fits_json);
}

// All types are tried: only now and then.
void guess(inspect::Bytes message)
{
    TameOutput out;
    const inspect::Palette palette(false);
    write_guesses(inspect::guess(message, kEnough), message.size(), palette, out.sink());
    write_refusals(inspect::refusals(message, kEnough), palette, out.sink());
}

} // namespace

void run(const Input &input)
{
    const Span place = place_message(input);
    const inspect::Bytes message(place.data, place.size);
    const size_t memory = input.capacity % 4 == 1 ? input.capacity : kEnough;
    Record record(type_of(*input.type), memory);
    const int32_t result = record.decode(message);
    require_agreement(record, message, result);
    show(record, message, result, memory);
    check(record, message, result, memory);
    if (input.segments == 1 && input.choice < 16)
        guess(message);
}

} // namespace fuzz
