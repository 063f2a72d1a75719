// SPDX-License-Identifier: MIT
#include "bench/compare.hpp"

#include <stdio.h>

#include <algorithm>
#include <string>

namespace bench {

Samples::Samples(const Workload &content) : workload(content)
{
    for (const void *record : workload.variants) {
        const uint32_t size = workload.encode(record, nullptr, 0, nullptr, nullptr, 0);
        Bytes bytes(size);
        workload.encode(record, bytes.data(), size, nullptr, nullptr, 0);
        encodings.push_back(bytes);
        longest = std::max(longest, size);
    }
}

namespace {

bool same(const Bytes &found, const Bytes &expected, const Samples &samples,
          const Contender &contender, std::string_view what)
{
    if (found == expected)
        return true;
    const auto [here, there] = std::ranges::mismatch(found, expected);
    fprintf(stderr, "%s/%s/%s: differs at byte %zu, is %zu bytes long, should be %zu\n",
            std::string(samples.workload.name).c_str(), std::string(what).c_str(),
            std::string(contender.implementation()).c_str(),
            static_cast<size_t>(here - found.begin()), found.size(), expected.size());
    return false;
}

// Everything that is timed, with the outcome encoded and compared with the library's encoding.
bool is_sound(const Samples &samples, Contender &contender, uint32_t variant)
{
    for (size_t i = 0; i < std::size(kOperationNames); i++) {
        const Operation operation = static_cast<Operation>(i);
        if (contender.can(operation) &&
            !same(contender.once(operation, variant), samples.encodings[variant], samples,
                  contender, kOperationNames[i]))
            return false;
    }
    return true;
}

} // namespace

bool agree(const Samples &samples, const std::vector<std::unique_ptr<Contender>> &contenders)
{
    for (uint32_t variant = 0; variant < samples.encodings.size(); variant++) {
        for (const auto &contender : contenders)
            if (!is_sound(samples, *contender, variant))
                return false;
        for (const auto &writer : contenders) {
            const Bytes written = writer->once(Operation::encode, variant);
            for (const auto &reader : contenders)
                if (!same(reader->recode(written), written, samples, *reader, "reading others"))
                    return false;
        }
    }
    return true;
}

} // namespace bench
