// SPDX-License-Identifier: MIT
#include "tests/costs/worst.hpp"

#include <algorithm>

namespace costs {

namespace {

constexpr Limits kQuick = {10, uint64_t{256} << 20, 0.002};

struct Measure {
    const char *name;
    bool of_all; // else where the record keeps all that was read
    double (*of)(const Cost &cost);
};

constexpr Measure kMeasures[] = {
    {"decoding time", true, [](const Cost &cost) { return cost.decode; }},
    {"memory", true, [](const Cost &cost) { return static_cast<double>(cost.decoding.bytes); }},
    {"requests", true, [](const Cost &cost) { return static_cast<double>(cost.decoding.calls); }},
    {"encoding time", false, [](const Cost &cost) { return cost.encode; }},
};

struct Measured {
    const Attack *attack;
    Cost cost;
};

bool same_sort(const Attack &a, const Attack &b)
{
    return a.family == b.family && a.levels == b.levels;
}

void add(std::vector<Worst> &worst, const Attack &attack, const char *measure)
{
    for (Worst &known : worst)
        if (known.attack.type == attack.type && known.attack.name == attack.name &&
            same_sort(known.attack, attack)) {
            known.most += std::string(", ") + measure;
            return;
        }
    worst.push_back({attack, measure});
}

// Costs of the same are near each other, and are not told apart: the first of them counts.
const Measured &worst_by(const Measure &measure, const std::vector<Measured> &all)
{
    double most = 0;
    for (const Measured &one : all)
        most = std::max(most, measure.of(one.cost));
    return *std::find_if(all.begin(), all.end(),
                         [&](const Measured &one) { return measure.of(one.cost) >= most * 0.98; });
}

} // namespace

std::vector<Worst> find_worst(const std::vector<Attack> &attacks, uint32_t size)
{
    std::vector<std::vector<Measured>> sorts;
    for (const Attack &attack : attacks) {
        auto sort = std::find_if(sorts.begin(), sorts.end(), [&](const auto &known) {
            return same_sort(*known.front().attack, attack);
        });
        if (sort == sorts.end())
            sort = sorts.insert(sorts.end(), std::vector<Measured>());
        sort->push_back({&attack, measure(*attack.type, attack.build(size), kQuick)});
    }
    std::vector<Worst> worst;
    for (const std::vector<Measured> &sort : sorts)
        for (const Measure &measure : kMeasures)
            if (measure.of_all || sort.front().attack->levels == 0)
                add(worst, *worst_by(measure, sort).attack, measure.name);
    return worst;
}

} // namespace costs
