// SPDX-License-Identifier: MIT
// Messages generated with optimize_for = SPEED.
#include "bench/peers/protobuf.hpp"
#include "bench/types.hpp"
#include "full.pb.h"

namespace bench {

std::unique_ptr<Contender> make_protobuf(const Samples &samples)
{
#define BENCH_TYPE(name)                                                                           \
    if (samples.workload.type == #name)                                                            \
        return std::make_unique<Driver<Protobuf<full::ethsw_mgmt_##name>>>("protobuf", samples);
    BENCH_FOR_EACH_TYPE(BENCH_TYPE)
#undef BENCH_TYPE
    return nullptr;
}

} // namespace bench
