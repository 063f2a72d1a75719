// SPDX-License-Identifier: MIT
// Bytes of messages, as tests write them down and as failures print them.

#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <iomanip>
#include <ostream>
#include <string_view>
#include <vector>

namespace test {

struct Bytes : std::vector<uint8_t> {
    using std::vector<uint8_t>::vector;

    uint32_t length() const { return static_cast<uint32_t>(size()); }
    // The first `count` of them, in a block of that size.
    Bytes first(size_t count) const { return Bytes(begin(), begin() + static_cast<long>(count)); }
};

// Found by GoogleTest.
inline void PrintTo(const Bytes &bytes, std::ostream *out)
{
    *out << bytes.size() << " bytes:" << std::hex << std::uppercase << std::setfill('0');
    for (uint8_t byte : bytes)
        *out << ' ' << std::setw(2) << unsigned{byte};
    *out << std::dec;
}

inline Bytes characters(std::string_view text)
{
    return Bytes(text.begin(), text.end());
}

// Copies what is there already, so that millions take no time under an emulator either.
inline Bytes repeat(uint32_t times, const Bytes &part)
{
    Bytes all(times * part.size());
    std::copy_n(part.begin(), times ? part.size() : 0, all.begin());
    for (size_t done = part.size(); done < all.size(); done *= 2)
        std::memcpy(all.data() + done, all.data(), std::min(done, all.size() - done));
    return all;
}

inline Bytes join(std::initializer_list<Bytes> parts)
{
    Bytes all;
    for (const Bytes &part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

} // namespace test
