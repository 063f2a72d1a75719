#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Condenses what Google Benchmark has written to what is worth keeping.
# Usage: condense.py TARGET BENCHMARK_JSON RESULTS_JSON
import json
import statistics
import subprocess
import sys
from pathlib import Path

PACKAGES = ["libprotobuf-dev", "libprotobuf-c-dev", "nanopb", "libprotozero-dev",
            "libbenchmark-dev", "g++", "g++-i686-linux-gnu"]
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def versions():
    """Of the packages installed; those of other architectures are from the same sources."""
    query = ["dpkg-query", "--show", "--showformat=${Package} ${Version}\n", *PACKAGES]
    lines = subprocess.run(query, capture_output=True, text=True, check=False).stdout
    return dict(line.split() for line in lines.splitlines() if len(line.split()) == 2)


def processor():
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.partition(":")[2].strip()
    return "unknown"


def workloads(context):
    """In the order of the runs, what the program tells about each."""
    found = {}
    for key, value in context.items():
        if key.startswith("workload:"):
            size, variants, extra, content = value.split("|")
            found[key.partition(":")[2]] = {"bytes": int(size), "variants": int(variants),
                                            "extra": extra == "extra", "content": content}
    return found


def times(benchmarks):
    """workload -> operation -> implementation -> processor time of each repetition, in ns."""
    found = {}
    for run in benchmarks:
        if run["run_type"] == "iteration":
            workload, operation, implementation = run["run_name"].split("/")
            ns = run["cpu_time"] * NANOSECONDS[run["time_unit"]]
            row = found.setdefault(workload, {}).setdefault(operation, {})
            row.setdefault(implementation, []).append(ns)
    return found


def main():
    target, source, destination = sys.argv[1:]
    report = json.loads(Path(source).read_text())
    runs = times(report["benchmarks"])
    spreads = [statistics.median(ns) / min(ns) for rows in runs.values()
               for row in rows.values() for ns in row.values()]
    results = {
        "target": target,
        "date": report["context"]["date"][:10],
        "processor": processor(),
        "versions": versions(),
        "repetitions": max(len(ns) for rows in runs.values()
                           for row in rows.values() for ns in row.values()),
        # How much longer than the quickest repetition the median one takes: the noise.
        "median_over_minimum": round(statistics.median(spreads), 3),
        "workloads": {name: about for name, about in workloads(report["context"]).items()
                      if name in runs},
        "nanoseconds": {workload: {operation: {implementation: float(f"{min(ns):.4g}")
                                               for implementation, ns in row.items()}
                                   for operation, row in rows.items()}
                        for workload, rows in runs.items()},
    }
    Path(destination).write_text(json.dumps(results, indent=1) + "\n")


main()
