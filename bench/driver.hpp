// SPDX-License-Identifier: MIT
// Makes a contender of a subject: a class with the steps of one implementation, which the compiler
// sees and places into the loops that are timed.
//
// A subject has these, where an Object is how it holds a message:
//     Subject(const Samples &);
//     const Object &variant(uint32_t index);            parsed from the samples, kept
//     uint32_t measure(const Object &);
//     void encode(const Object &, uint8_t *buffer, uint32_t size);       measured before
//     const Object &decode(BytesView);                  where was decoded or duplicated before
//     const Object &decode_on_heap(BytesView);
//     void free_decoded();
//     const Object &duplicate(const Object &);          where was decoded or duplicated before
// and where it applies:
//     uint32_t measure_and_encode(const Object &, uint8_t *buffer);      if not just one and other
//     void encode_segments(const Object &, uint8_t *buffer, uint32_t size);
//     const Object &decode_again(BytesView);            over the message that was decoded before
//     Bytes gather();                                   if an encoding is not just the buffer

#pragma once

#include "bench/contender.hpp"

#include <algorithm>
#include <stdexcept>

namespace bench {

// Behind each buffer: protozero leaves room for the lengths of the messages that it is inside of,
// and closes up when it knows them.
inline constexpr uint32_t kSlack = 64;

template <typename Subject>
class Driver : public Contender {
public:
    Driver(std::string_view implementation, const Samples &samples)
        : implementation_(implementation), samples_(samples), subject_(samples),
          buffer_(samples.longest + kSlack)
    {
        for (uint32_t i = 0; i < samples.encodings.size(); i++)
            sizes_.push_back(subject_.measure(subject_.variant(i)));
    }

    std::string_view implementation() const override { return implementation_; }

    bool can(Operation operation) const override
    {
        return operation == Operation::encode_segments ? kHasSegments
               : operation == Operation::decode_again  ? kDecodesAgain
                                                       : true;
    }

    Bytes recode(BytesView bytes) override { return bytes_of(subject_.decode(bytes)); }

    Bytes once(Operation operation, uint32_t i) override
    {
        const auto &variant = subject_.variant(i);
        switch (operation) {
        case Operation::measure_and_encode:
            return gather(measure_and_encode(variant));
        case Operation::encode_segments:
            encode_segments(i);
            return gather(sizes_[i]);
        case Operation::measure:
        case Operation::encode:
            return bytes_of(variant);
        case Operation::duplicate:
            return bytes_of(subject_.duplicate(variant));
        case Operation::decode:
            return recode(samples_.encodings[i]);
        case Operation::decode_again:
            if constexpr (kDecodesAgain)
                return bytes_of(subject_.decode_again(samples_.encodings[i]));
            return {};
        case Operation::decode_and_free:
            const Bytes bytes = bytes_of(subject_.decode_on_heap(samples_.encodings[i]));
            subject_.free_decoded();
            return bytes;
        }
        return {};
    }

    void run(Operation operation, benchmark::State &state) override
    {
        const std::vector<Bytes> &encodings = samples_.encodings;
        switch (operation) {
        case Operation::measure:
            return loop(state, [&](uint32_t i) { return subject_.measure(subject_.variant(i)); });
        case Operation::measure_and_encode:
            return loop(state, [&](uint32_t i) { return measure_and_encode(subject_.variant(i)); });
        case Operation::encode:
            return loop(state, [&](uint32_t i) { return encode(i); });
        case Operation::encode_segments:
            return loop(state, [&](uint32_t i) { return encode_segments(i); });
        case Operation::decode:
            return loop(state, [&](uint32_t i) { return &subject_.decode(encodings[i]); });
        case Operation::decode_again:
            if constexpr (kDecodesAgain)
                loop(state, [&](uint32_t i) { return &subject_.decode_again(encodings[i]); });
            return;
        case Operation::decode_and_free:
            return loop(state, [&](uint32_t i) {
                subject_.decode_on_heap(encodings[i]);
                subject_.free_decoded();
                return 0;
            });
        case Operation::duplicate:
            return loop(state,
                        [&](uint32_t i) { return &subject_.duplicate(subject_.variant(i)); });
        }
    }

private:
    static constexpr bool kHasSegments = requires(Subject & subject)
    {
        subject.encode_segments(subject.variant(0), nullptr, 0);
    };
    static constexpr bool kDecodesAgain = requires(Subject & subject)
    {
        subject.decode_again(BytesView());
    };

    // The step for each variant in turn.
    template <typename Step>
    void loop(benchmark::State &state, Step step)
    {
        const uint32_t end = static_cast<uint32_t>(sizes_.size());
        uint32_t variant = 0;
        for (auto _ : state) {
            benchmark::DoNotOptimize(step(variant));
            benchmark::ClobberMemory();
            if (++variant == end)
                variant = 0;
        }
    }

    uint32_t measure_and_encode(const typename Subject::Object &object)
    {
        if constexpr (requires { subject_.measure_and_encode(object, buffer_.data()); })
            return subject_.measure_and_encode(object, buffer_.data());
        const uint32_t size = subject_.measure(object);
        subject_.encode(object, buffer_.data(), size);
        return size;
    }

    uint32_t encode(uint32_t variant)
    {
        subject_.encode(subject_.variant(variant), buffer_.data(), sizes_[variant]);
        return sizes_[variant];
    }

    uint32_t encode_segments(uint32_t variant)
    {
        if constexpr (kHasSegments)
            subject_.encode_segments(subject_.variant(variant), buffer_.data(), sizes_[variant]);
        return sizes_[variant];
    }

    Bytes bytes_of(const typename Subject::Object &object)
    {
        const uint32_t size = subject_.measure(object);
        subject_.encode(object, buffer_.data(), size);
        return gather(size);
    }

    // What was encoded last.
    Bytes gather(uint32_t size)
    {
        if constexpr (requires { subject_.gather(); })
            return subject_.gather();
        Bytes bytes(buffer_.begin(), buffer_.begin() + size);
        std::ranges::fill(buffer_, 0);
        return bytes;
    }

    std::string_view implementation_;
    const Samples &samples_;
    Subject subject_;
    Bytes buffer_;
    std::vector<uint32_t> sizes_;
};

} // namespace bench
