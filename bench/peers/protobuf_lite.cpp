// SPDX-License-Identifier: MIT
// Messages generated with optimize_for = LITE_RUNTIME.
#include "bench/peers/protobuf.hpp"
#include "bench/types.hpp"
#include "lite.pb.h"

namespace bench {

std::unique_ptr<Contender> make_protobuf_lite(const Samples &samples)
{
#define BENCH_TYPE(name)                                                                           \
    if (samples.workload.type == #name)                                                            \
        return std::make_unique<Driver<Protobuf<lite::ethsw_mgmt_##name>>>("protobuf_lite",        \
                                                                           samples);
    BENCH_FOR_EACH_TYPE(BENCH_TYPE)
#undef BENCH_TYPE
    return nullptr;
}

} // namespace bench
