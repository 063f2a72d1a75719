#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Prints the table: a block for each operation, a row for each workload, a column for each
# implementation. Usage: table.py RESULTS_JSON
import sys

sys.dont_write_bytecode = True
from results import AGAIN, OPERATIONS, OURS, PEERS, SEGMENTS, Results  # noqa: E402

WIDTH = 14


def number(ns):
    if ns is None:
        return "-"
    if ns < 100:
        return f"{ns:.1f}"
    return f"{ns:,.0f}"


def ratio(value):
    return "-" if value is None else f"{value:.2f}"


def line(name, cells):
    print(f"{name:<31}" + "".join(f"{cell:>{WIDTH}}" for cell in cells))


def label(results, name):
    return name + " *" if results.workloads[name]["extra"] else name


def block(results, operation):
    names = [name for name in results.names() if operation in results.nanoseconds[name]]
    if not names:
        return
    line(operation.upper(), ["ours"] + PEERS + ["ours/best"])
    for name in names:
        times = [results.time(name, operation, column) for column in [OURS] + PEERS]
        line(label(results, name),
             [*map(number, times), ratio(results.ratio(name, operation))])
    line("geometric mean: ours/this",
         [""] + [ratio(results.mean_ratio(operation, to=peer)) for peer in PEERS] +
         [ratio(results.mean_ratio(operation))])
    line("geometric mean: this/best peer",
         [ratio(results.mean_ratio(operation, column)) for column in [OURS] + PEERS] + [""])
    print()


def side_block(results, title, heads, columns, of):
    """A block of a few columns, each an operation of an implementation, and a ratio."""
    names = [name for name in results.names() if of(name)]
    if not names:
        return
    line(title, heads)
    for name in names:
        times = [number(results.time(name, *column)) for column in columns]
        line(label(results, name), [*times, ratio(of(name))])
    line("geometric mean", [""] * len(columns) + [ratio(results.counted(of))])
    print()


def main():
    results = Results(sys.argv[1])
    print(f"\n{results.target}, {results.processor}: processor time in ns, the least of "
          f"{results.repetitions} repetitions; the median is "
          f"{100 * (results.median_over_minimum - 1):.1f} % more")
    print("ours/best: the time of the library over that of the quickest peer; "
          "* is not part of the means\n")
    for operation in OPERATIONS:
        block(results, operation)
    side_block(results, "ENCODE WITH SEGMENTS", ["ours", "without", "with/without"],
               [(SEGMENTS, OURS), ("encode", OURS)], results.segments_ratio)
    side_block(results, "DECODE OVER THE MESSAGE BEFORE",
               ["ours, arena", "protobuf", "protobuf_lite", "ours/best"],
               [("decode", OURS), (AGAIN, "protobuf"), (AGAIN, "protobuf_lite")],
               results.again_ratio)


main()
