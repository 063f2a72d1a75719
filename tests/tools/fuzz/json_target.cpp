// SPDX-License-Identifier: MIT
// Fuzzer: records from JSON and back. The first bytes of an input choose record type, options and
// memory, the rest is the text.
#include "tests/tools/fuzz/claims.hpp"
#include "tools/core/error.hpp"
#include "tools/core/json.hpp"

#include <algorithm>
#include <string>

namespace inspect {

namespace {

constexpr size_t kHeader = 4;
constexpr size_t kEnough = size_t{1} << 22;

size_t limit_of(uint8_t byte)
{
    return byte == 0 ? kEnough : size_t{16} * byte;
}

const RecordType &type_of(const uint8_t *header)
{
    const size_t index = header[0] | size_t{header[1]} << 8;
    return *own_types()[index % own_types().size()];
}

JsonOptions options_of(uint8_t bits)
{
    return {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0};
}

bool fill(Record &record, std::string_view json, const JsonOptions &options, size_t limit)
{
    bool is_filled = false;
    try {
        read_json(json, options, record);
        is_filled = true;
    } catch (const Error &error) {
        require_message(error.what());
    }
    require(record.arena().used() <= limit, "no more memory than the limit");
    return is_filled;
}

std::string written(const Record &record, const JsonOptions &options)
{
    std::string json;
    write_json(record.view(), options, {}, [&json](std::string_view text) { json += text; });
    require_tame(json);
    require(json.ends_with('\n'), "a text ends with a line break");
    if (options.one_line)
        require(std::ranges::count(json, '\n') == 1, "it has no other");
    return json;
}

// What JSON has said, it can say again.
void require_same_again(const Record &record, const JsonOptions &options)
{
    const std::string json = written(record, options);
    Record again(record.type(), kEnough);
    require(fill(again, json, options, kEnough), "what is written is read");
    require(record.encode() == again.encode(), "it is read as it was");
    require(written(again, options) == json, "it is written as it was");
}

} // namespace

} // namespace inspect

using namespace inspect;

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < kHeader)
        return -1;
    const JsonOptions options = options_of(data[2]);
    const size_t limit = limit_of(data[3]);
    const std::string_view json(reinterpret_cast<const char *>(data) + kHeader, size - kHeader);
    Record record(type_of(data), limit);
    if (fill(record, json, options, limit))
        require_same_again(record, options);
    return 0;
}
