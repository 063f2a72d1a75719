// SPDX-License-Identifier: MIT
// Fills a record as the events of a JSON text say. It keeps the records and lists that are open,
// which are few: no record is nested deeply.

#pragma once

#include "tools/core/json.hpp"
#include "tools/core/json_list.hpp"
#include "tools/core/record.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

// Each event throws Error where it does not fit the record.
class JsonFiller {
public:
    JsonFiller(const JsonOptions &options, Record &record) : options_(options), record_(record) {}

    void null();
    void boolean(bool value);
    void number(std::string_view digits);
    void string(std::string_view value);
    void key(std::string_view name);
    void open_object();
    void close_object() { open_.pop_back(); }
    void open_list();
    void close_list();

    // Whether the value is there, to its end.
    bool is_complete() const { return is_begun_ && open_.empty(); }

private:
    // A record of which some members are filled.
    struct Open {
        RecordEditor record;
        std::vector<bool> seen;         // which members had their key
        const Member *member = nullptr; // whose value comes next
        std::optional<JsonList> list;   // its value, when that is a list
    };
    enum class Wanted { u32, u64, boolean, text, bytes, object, list };

    Wanted wanted() const;
    void refuse(std::string_view found) const;
    [[noreturn]] void fail(const std::string &problem) const;
    std::string path() const;

    void open_record(RecordEditor record);
    void put_number(std::string_view digits, const std::string &shown);
    void put_text(std::string_view value);
    void put_bytes(std::string_view digits);
    std::byte *add_element();
    std::byte *take(size_t size);

    const JsonOptions &options_;
    Record &record_;
    std::vector<Open> open_;
    size_t gathered_ = 0; // bytes of the elements of all open lists
    bool is_begun_ = false;
};

} // namespace inspect
