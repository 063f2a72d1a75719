# SPDX-License-Identifier: MIT
# What the tables and plots are made of: times, and their ratios to those of peers.
import json
import math
from pathlib import Path

OURS = "ours"
PEERS = ["protobuf", "protobuf_lite", "protobuf-c", "nanopb", "protozero"]
OPERATIONS = ["measure", "measure+encode", "encode", "decode", "decode+free", "duplicate"]
# The peers have no such lists: this is beside our own encoding without one.
SEGMENTS = "encode_segments"
# Only protobuf has it: this is beside our decoding into an arena.
AGAIN = "decode_again"
# The order in which a reader looks for them: from small to large ideas.
WORKLOADS = ["port_reset", "port_get_statistics_resp", "interface_status_rsp", "switch_info",
             "bridge_get_counters_response", "fdb_get_table_entry_resp",
             "vlan_get_table_entry_resp", "get_pcl_resp", "show_txq_resp",
             "show_emon_stats_resp", "glbl_sdr_statistics_resp", "debug_get_health_state_rsp",
             "reg_info_rsp", "fpd_cmp_to_file", "add_pcl_flow", "add_pcl_flow_in_place",
             "yield_switch_to_peer_response"]


def mean(ratios):
    """The geometric mean, or None of nothing."""
    ratios = list(ratios)
    return math.exp(sum(map(math.log, ratios)) / len(ratios)) if ratios else None


class Results:
    def __init__(self, path):
        self.__dict__.update(json.loads(Path(path).read_text()))

    def names(self):
        return [name for name in WORKLOADS if name in self.nanoseconds]

    def time(self, workload, operation, implementation):
        return self.nanoseconds.get(workload, {}).get(operation, {}).get(implementation)

    def best_peer(self, workload, operation):
        """The least time of any peer."""
        times = [self.time(workload, operation, peer) for peer in PEERS]
        return min(filter(None, times), default=None)

    def ratio(self, workload, operation, implementation=OURS, to=None):
        """To the time of another, or else of the best peer."""
        time = self.time(workload, operation, implementation)
        other = (self.time(workload, operation, to) if to
                 else self.best_peer(workload, operation))
        return time / other if time and other else None

    def mean_ratio(self, operation, implementation=OURS, to=None):
        return self.counted(lambda name: self.ratio(name, operation, implementation, to))

    def segments_ratio(self, workload):
        with_list = self.time(workload, SEGMENTS, OURS)
        without = self.time(workload, "encode", OURS)
        return with_list / without if with_list and without else None

    def again_ratio(self, workload):
        ours = self.time(workload, "decode", OURS)
        best = self.best_peer(workload, AGAIN)
        return ours / best if ours and best else None

    def counted(self, ratio):
        """The mean over the workloads that count."""
        return mean(filter(None, (ratio(name) for name in self.names()
                                  if not self.workloads[name]["extra"])))
