// SPDX-License-Identifier: MIT
// Which types a message is taken to be of, and in which order.
#include "tests/tools/golden.hpp"
#include "tests/tools/message.hpp"
#include "tests/tools/sample_record.hpp"
#include "tools/core/guess.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace inspect {

namespace {

constexpr size_t kGuessMemory = size_t{1} << 20;

bool have_same_shape(const RecordType &one, const RecordType &other)
{
    return std::ranges::equal(one.members, other.members, [](const Member &a, const Member &b) {
        return a.number == b.number && a.kind == b.kind &&
               (!a.child || have_same_shape(*a.child, *b.child));
    });
}

// How many guesses are before the one that has this type; their number if none has it.
size_t place_of(const RecordType &type, const std::vector<Guess> &guesses)
{
    const auto found = std::ranges::find_if(guesses, [&type](const Guess &guess) {
        return std::ranges::find(*guess.types, &type) != guess.types->end();
    });
    return static_cast<size_t>(found - guesses.begin());
}

size_t place_of(std::string_view type, const std::vector<Guess> &guesses)
{
    return place_of(*find_type(type), guesses);
}

std::vector<Guess> guesses_for(std::string_view message)
{
    return guess(bytes_of(message), kGuessMemory);
}

const Guess &guess_of(std::string_view type, const std::vector<Guess> &guesses)
{
    return guesses.at(place_of(type, guesses));
}

std::string guess_screen(std::string_view message, bool coloured = false)
{
    std::string text;
    const Palette palette(coloured);
    const Sink sink = [&text](std::string_view part) { text += part; };
    const std::vector<Guess> guesses = guesses_for(message);
    write_guesses(guesses, message.size(), palette, sink);
    if (guesses.empty())
        write_refusals(refusals(bytes_of(message), kGuessMemory), palette, sink);
    return text;
}

TEST(guess, has_each_type_in_one_class)
{
    std::set<const RecordType *> seen;
    for (const ShapeClass &types : shape_classes())
        for (const RecordType *type : types)
            EXPECT_TRUE(seen.insert(type).second) << type->name;
    EXPECT_EQ(seen, std::set(own_types().begin(), own_types().end()));
}

TEST(guess, has_types_in_one_class_if_they_have_the_same_shape)
{
    const std::vector<ShapeClass> &classes = shape_classes();
    for (const ShapeClass &types : classes)
        for (const RecordType *type : types)
            EXPECT_TRUE(have_same_shape(*types[0], *type)) << types[0]->name << " " << type->name;
    for (size_t i = 0; i < classes.size(); i++)
        for (size_t j = 0; j < i; j++)
            EXPECT_FALSE(have_same_shape(*classes[i][0], *classes[j][0]))
                << classes[i][0]->name << " " << classes[j][0]->name;
}

TEST(guess, has_the_type_of_a_message_among_the_first)
{
    constexpr size_t kFirst = 6;
    size_t at_the_top = 0;
    for (const RecordType *type : own_types()) {
        const std::vector<uint8_t> message = Samples().record(*type).encode();
        const std::vector<Guess> guesses = guess(message, kGuessMemory);
        const size_t place = place_of(*type, guesses);
        ASSERT_LT(place, std::min(kFirst, guesses.size())) << type->name;
        EXPECT_TRUE(guesses[place].is_canonical) << type->name;
        EXPECT_EQ(guesses[place].bytes_known, message.size()) << type->name;
        EXPECT_EQ(guesses[place].members_present, type->members.size()) << type->name;
        EXPECT_EQ(guesses[place].members_missing, 0u) << type->name;
        at_the_top += place == 0;
    }
    EXPECT_GE(at_the_top, own_types().size() * 8 / 10);
}

struct Preference {
    std::string message;
    const char *likelier;
    const char *other;
};

TEST(guess, prefers_some_types_to_others)
{
    const Preference preferences[] = {
        // What is known in full to what is known in part, or not at all.
        {number(1, 7) + number(2, 8), "get_loopback_rsp", "port_reset"},
        {number(3, 7), "get_pcl", "port_reset"},
        {number(9, 7), "switch_info", "get_switch_info"},
        // What would be written in the same way: a bool is not written as 7.
        {number(1, 7) + number(2, 7), "get_loopback_rsp", "port_enable"},
        // Few missing members to many.
        {number(1, 7), "port_reset", "port_get_statistics_resp"},
        {number(1, 7), "port_reset", "port_enable"},
        // Texts that look like texts.
        {number(1, 7) + piece(2, "\x08\x01"), "sfp_summary_response", "debug_set_health_event_rsp"},
        // Texts, and records, to byte strings.
        {piece(3, "name"), "port_info", "bridge_sec_breach_details"},
    };
    for (const Preference &each : preferences) {
        const std::vector<Guess> guesses = guesses_for(each.message);
        EXPECT_LT(place_of(each.likelier, guesses), place_of(each.other, guesses))
            << each.likelier << " " << each.other;
    }
}

TEST(guess, counts_the_bytes_of_known_fields)
{
    const std::string unknown = number(100, 1);
    const std::vector<Guess> guesses = guesses_for(number(1, 300) + unknown + number(2, 1));
    EXPECT_EQ(guess_of("port_enable", guesses).bytes_known, 5u);
    EXPECT_EQ(guess_of("port_enable", guesses).members_present, 2u);
    EXPECT_EQ(guess_of("port_reset", guesses).bytes_known, 3u);
    EXPECT_EQ(guess_of("get_switch_info", guesses).bytes_known, 0u);
    EXPECT_FALSE(guess_of("port_enable", guesses).is_canonical);
}

// Unknown within what is known is unknown.
TEST(guess, counts_the_bytes_of_known_fields_in_nested_records)
{
    const std::vector<Guess> guesses =
        guesses_for(piece(8, number(2, 1) + number(100, 1)) + piece(2, ""));
    EXPECT_EQ(guess_of("switch_info", guesses).bytes_known, 6u);
    EXPECT_EQ(guess_of("switch_info", guesses).members_present, 2u);
}

TEST(guess, sees_texts_that_are_none)
{
    for (const char *text : {"\x01", "a\x7F", "\xFF", "\xC3", "\n"})
        EXPECT_TRUE(guess_of("bcm_shell_cmd", guesses_for(piece(1, text))).has_odd_text) << text;
    EXPECT_TRUE(
        guess_of("bcm_shell_cmd", guesses_for(piece(1, std::string(1, '\0')))).has_odd_text);
    for (const char *text : {"", "a b~", "\xC3\xA4", "\xF0\x9F\x98\x80"})
        EXPECT_FALSE(guess_of("bcm_shell_cmd", guesses_for(piece(1, text))).has_odd_text) << text;
}

TEST(guess, takes_an_empty_message_for_each_type)
{
    const std::vector<Guess> guesses = guesses_for("");
    EXPECT_EQ(guesses.size(), shape_classes().size());
    EXPECT_TRUE(guesses[0].types->front()->members.empty());
}

TEST(guess, leaves_out_types_that_need_more_memory_than_there_may_be)
{
    const std::string message = piece(1, repeated(1000, "a"));
    const RecordType &type = *find_type("bcm_shell_cmd");
    EXPECT_LT(place_of(type, guess(bytes_of(message), 2000)), shape_classes().size());
    const std::vector<Guess> guesses = guess(bytes_of(message), 500);
    EXPECT_EQ(place_of(type, guesses), guesses.size());
    const std::vector<Refusal> refused = refusals(bytes_of(message), 500);
    EXPECT_TRUE(std::ranges::any_of(refused, [&type](const Refusal &refusal) {
        return refusal.types->front() == &type && refusal.verdict.result == WIRE_ERR_NO_MEMORY;
    }));
}

TEST(guess, accounts_for_each_class)
{
    for (const std::string &message :
         {std::string("\x0B"), number(1, 1), piece(1, "a"), piece(2, "\x08"), std::string("\x08")})
        EXPECT_EQ(guesses_for(message).size() + refusals(bytes_of(message), kGuessMemory).size(),
                  shape_classes().size());
}

TEST(guess, names_those_first_that_came_furthest)
{
    // A group, which no type can read or skip. Only one of them knows the fields before it.
    const std::string message =
        number(1, 1) + piece(4, "the name") + number(5, 0) + piece(8, "") + "\x4B";
    EXPECT_TRUE(guesses_for(message).empty());
    const std::vector<Refusal> refused = refusals(bytes_of(message), kGuessMemory);
    ASSERT_EQ(refused.size(), shape_classes().size());
    EXPECT_EQ(refused[0].types->front()->short_name(), "switch_info");
    EXPECT_EQ(refused[0].verdict.result, WIRE_ERR_TYPE_MISMATCH);
    EXPECT_EQ(refused[0].verdict.offset, 16u);
}

// It jumps back to its own tag, for ever: the length counts from behind itself.
TEST(guess, takes_no_message_that_jumps_back_for_ever)
{
    const std::string message = number(1, 1) + "\x82\x7D" + "\xF9\xFF\xFF\xFF\x0F";
    EXPECT_TRUE(guesses_for(message).empty());
}

// Each of the last fields jumps back onto a record that spans nearly all, up to the next of them.
// These records are hidden in unknown fields, so that only a jump gets there; one type has them.
std::string jumps_too_often()
{
    constexpr size_t kRecord = 29; // in debug_get_health_state_rsp
    constexpr size_t kUnknown = 2000;
    constexpr size_t kJumps = 200;
    constexpr size_t kSize = 7; // of a field with a record in it, and of a jump
    const std::string numbers = repeated(2000, number(1, 8));
    const auto jump_at = [&](size_t i) { return kJumps * kSize + numbers.size() + i * kSize; };
    const std::string unknown_tag = varint(kUnknown << 3 | 2);
    std::string message;
    for (size_t i = 0; i < kJumps; i++) {
        const size_t length = jump_at(i + 1) - (i + 1) * kSize;
        message += piece(kUnknown, varint(kRecord << 3 | 2) + varint(length));
    }
    message += numbers;
    for (size_t i = 0; i < kJumps; i++) {
        const uint64_t back = jump_at(i + 1) - (i * kSize + 3);
        message += unknown_tag + varint((uint64_t{1} << 32) - back);
    }
    return message;
}

TEST(guess, does_not_follow_a_message_that_jumps_back_too_often)
{
    const RecordType *const type = find_type("debug_get_health_state_rsp");
    const std::string message = jumps_too_often();
    const std::vector<Refusal> refused = refusals(bytes_of(message), kGuessMemory);
    const auto gave_up = std::ranges::find_if(
        refused, [type](const Refusal &refusal) { return refusal.types->front() == type; });
    ASSERT_NE(gave_up, refused.end());
    EXPECT_EQ(gave_up->verdict.result, WIRE_OK);
    std::string screen;
    write_refusals({*gave_up}, Palette(false), [&](std::string_view part) { screen += part; });
    EXPECT_NE(screen.find("jumps back so often"), std::string::npos) << screen;
}

TEST(guess, tells_how_far_it_is)
{
    std::vector<double> told;
    guess({}, kGuessMemory, [&told](double done) { told.push_back(done); });
    EXPECT_EQ(told.size(), shape_classes().size());
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_LE(told.back(), 1);
}

TEST(guess, looks_as_it_should)
{
    expect_golden("guess_switch_info.txt", guess_screen(number(1, 1) + piece(4, "left") +
                                                        piece(8, number(2, 1)) + number(9, 3)));
    expect_golden("guess_odd_text.txt", guess_screen(number(3, 1) + piece(2, "\x01\xFF")));
    expect_golden("guess_refused.txt", guess_screen(number(1, 1) + piece(4, "the name") + "\x4B"));
    expect_golden("guess_refused.ansi",
                  guess_screen(number(1, 1) + piece(4, "the name") + "\x4B", true));
}

TEST(guess, says_that_an_empty_message_says_nothing)
{
    const std::string screen = guess_screen("");
    EXPECT_EQ(screen.substr(0, screen.find('\n')),
              "The message is empty, which says nothing: it fits 259 types of " +
                  std::to_string(shape_classes().size()) + " shapes");
    for (const RecordType *type : own_types())
        EXPECT_NE(screen.find(type->short_name()), std::string::npos) << type->name;
}

} // namespace

} // namespace inspect
