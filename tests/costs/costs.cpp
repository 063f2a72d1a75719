// SPDX-License-Identifier: MIT
// Looks for the messages that cost most and prints what they cost at three sizes.

#include "tests/costs/worst.hpp"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

using namespace costs;

constexpr uint32_t kSizes[] = {4 << 10, 64 << 10, 1 << 20};
constexpr uint32_t kSearchSize = kSizes[0];
constexpr uint64_t kBudget = uint64_t{512} << 20;

const char *name_of_result(int32_t result)
{
    constexpr const char *kNames[] = {"done", "malformed", "wire type", "type mismatch",
                                      "no memory"};
    return kNames[-result];
}

std::string name_of_size(uint32_t size)
{
    return size < 1 << 20 ? std::to_string(size >> 10) + " KiB"
                          : std::to_string(size >> 20) + " MiB";
}

struct Row {
    uint32_t bytes;
    Cost cost;
};

// To which power of the size the time has grown.
void print_growth(const Row &row, const std::optional<Row> &before)
{
    // Where memory has run out, or did not, the two have not done the same.
    if (!before || before->cost.result != row.cost.result)
        std::printf(" |");
    else
        std::printf(" %.1f |", std::log(row.cost.decode / before->cost.decode) /
                                   std::log(double{1} * row.bytes / before->bytes));
}

void print(const Row &row, const std::optional<Row> &before)
{
    const Cost &cost = row.cost;
    const auto per_byte = [&](double value) { return value / row.bytes; };
    const auto nanoseconds = [&](double seconds) { return per_byte(seconds * 1e9); };
    std::printf(" %.3g s | %.3g |", cost.decode, nanoseconds(cost.decode));
    print_growth(row, before);
    std::printf(" %.4g | %.3g | %.3g | %.3g | %.3g | %s |\n",
                per_byte(static_cast<double>(cost.decoding.bytes)),
                per_byte(static_cast<double>(cost.decoding.calls)), nanoseconds(cost.duplicate),
                nanoseconds(cost.encode), nanoseconds(cost.release), name_of_result(cost.result));
}

void print_head()
{
    std::printf(
        "| message | size | decode | ns | power | asked | requests | duplicate ns |"
        " encode ns | release ns | result |\n|---|---|---|---|---|---|---|---|---|---|---|\n");
}

// What is too slow at one size is not tried at the next.
bool print_sizes(const Worst &worst, unsigned seconds)
{
    const Attack &attack = worst.attack;
    std::printf("| %s, `%s`: %s (most %s)", name_of(attack.family), attack.type->name,
                attack.name.c_str(), worst.most.c_str());
    std::optional<Row> before;
    for (uint32_t size : kSizes) {
        const Bytes input = attack.build(size);
        const double least_time = size < kSizes[1] ? 0.2 : 0.5;
        const Cost cost = measure(*attack.type, input, {seconds, kBudget, least_time});
        const Row row = {input.length(), cost};
        std::printf(" | %s |", name_of_size(size).c_str());
        if (cost.outcome == Outcome::crashed)
            return false;
        if (cost.outcome == Outcome::too_slow) {
            std::printf(" > %u s | | | | | | | | |\n", seconds);
            break;
        }
        print(row, before);
        std::fflush(stdout);
        if (size != kSizes[2])
            std::printf("|");
        before = row;
    }
    return true;
}

} // namespace

int main(int count, char **words)
{
    const unsigned seconds =
        count > 1 ? static_cast<unsigned>(std::strtoul(words[1], nullptr, 10)) : 0;
    if (count > 2 || !seconds) {
        std::fputs("usage: costs SECONDS, the most for one message\n", stderr);
        return 2;
    }
    print_head();
    for (const Worst &worst : find_worst(all_attacks(), kSearchSize))
        if (!print_sizes(worst, seconds)) {
            std::printf(" CRASHED\n");
            return 1;
        }
    return 0;
}
