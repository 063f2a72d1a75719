#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Makes of what Google Benchmark has written a table, a file of results and a plot.
# Usage: report.py TARGET BENCHMARK_JSON RESULTS_JSON RESULTS_SVG
import json
import re
import subprocess
import sys
from pathlib import Path

# From here on the load tells in what threads do.
BUSY = 0.5
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
TITLES = {"measure": "measure", "encode": "encode, size known", "decode": "decode into an arena",
          "duplicate": "duplicate"}
STYLES = {"measure": "lc rgb '#0072B2' pt 6", "encode": "lc rgb '#009E73' pt 4",
          "decode": "lc rgb '#C1272D' pt 7", "duplicate": "lc rgb '#C79A00' pt 12"}
# A light ground of its own, so that it reads on a dark page, too.
HEAD = """\
set terminal svg size 1080,420 noenhanced font 'DejaVu Sans,Helvetica,sans-serif,12' \
background '#FBFBF8'
set multiplot
set grid xtics ytics lt 1 lw 0.6 lc rgb '#DDDDD6'
set border 3 lw 0.8 lc rgb '#999999'
set tics nomirror scale 0.4 font ',10'
set label 1 'Times grow with what there is to do' at screen 0.5,0.94 center font ',17'
set tmargin at screen 0.74
set bmargin at screen 0.17
set yrange [0:*]
unset key
"""


def processor():
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.partition(":")[2].strip()
    return "unknown"


def collect(benchmarks):
    """what -> operation -> value -> the best of all repetitions: nanoseconds of processor time for
    one unit (a byte, a leaf), or for threads the bytes that all of them do in a second."""
    found = {"size": {}, "depth": {}, "threads": {}}
    for run in benchmarks:
        if run["run_type"] != "iteration":
            continue
        what, value, operation = run["run_name"].split("/")[:3]
        row = found[what].setdefault(operation, {})
        value = int(value)
        if what == "threads":
            row[value] = max(row.get(value, 0), run["rate"])
        else:
            ns = run["cpu_time"] * NANOSECONDS[run["time_unit"]] / run["units"]
            row[value] = min(row.get(value, ns), ns)
    return {what: {operation: [[value, float(f"{row[value]:.4g}")] for value in sorted(row)]
                   for operation, row in ((name, rows[name]) for name in TITLES if name in rows)}
            for what, rows in found.items()}


def short(size):
    for unit, name in ((1 << 20, "MiB"), (1 << 10, "KiB")):
        if size >= unit:
            return f"{size // unit} {name}"
    return f"{size} B"


def table(title, rows, head, number):
    operations = list(rows)
    print(f"\n{title}")
    print(" " * 10 + "".join(f"{operation:>12}" for operation in operations))
    for index, (value, _) in enumerate(rows[operations[0]]):
        cells = "".join(f"{number(operation, index):>12}" for operation in operations)
        print(f"{head(value):>10}{cells}")


def print_tables(results):
    def plain(what):
        return lambda operation, index: f"{results[what][operation][index][1]:.3f}"

    def scaled(operation, index):
        row = results["threads"][operation]
        return f"{row[index][1] / 1e9:.2f} ({row[index][1] / row[0][1]:.2f})"

    print(f"{results['target']}, {results['processor']}, {results['cores']} cores")
    if results["load_before"] > BUSY:
        print(f"The machine was busy, with a load of {results['load_before']:.1f}: threads that "
              "share its cores with others do less than they could.")
    table("ns per byte, by the size of a message (a table of forwarding entries)",
          results["size"], short, plain("size"))
    table("ns per number, by the levels of records that hold 12288 of them",
          results["depth"], str, plain("depth"))
    table("GB per second of all threads (to that of one), each with data of its own",
          results["threads"], str, scaled)


def curves(rows, value=lambda _, y: y):
    """gnuplot's data and what to plot of it."""
    data = "".join(
        f"$data_{operation} << EOD\n" +
        "".join(f"{x} {value(row, y)}\n" for x, y in row) + "EOD\n"
        for operation, row in rows.items())
    plots = [f"$data_{operation} with linespoints lw 1.8 ps 0.7 {STYLES[operation]}"
             for operation in rows]
    return data, plots


def panel(place, title, label, settings, curves_of, besides=()):
    data, plots = curves_of
    return (f"{data}set lmargin at screen {place[0]}\nset rmargin at screen {place[1]}\n"
            f"set title '{title}' font ',13'\nset xlabel '{label}' font ',11'\n{settings}\n"
            f"plot {', '.join([*besides, *plots])}\nunset label\n")


def legend():
    text = ""
    for number, (operation, title) in enumerate(TITLES.items()):
        text += (f"set label {number + 2} '{title}' at screen {0.19 + 0.18 * number:.2f},0.865 "
                 f"left offset 0.8,-0.25 point {STYLES[operation]} ps 0.8\n")
    return text


def draw(results, output):
    sizes = results["size"]["encode"]
    tics = ", ".join(f"'{short(size)}' {size}" for size, _ in sizes[::2])
    cores = results["cores"]
    script = HEAD + legend()
    script += panel((0.05, 0.36), "ns per byte", "size of the message",
                    f"set logscale x 4\nset xrange [48:1e8]\nset xtics ({tics})",
                    curves(results["size"]))
    script += panel((0.41, 0.66), "ns per number", "levels of records",
                    "unset logscale\nset xtics 1\nset xrange [0.8:4.2]", curves(results["depth"]))
    script += panel((0.72, 0.97), "throughput, to that of one thread", "threads",
                    f"set xrange [0.8:{cores + 0.2}]\nset yrange [0:{cores + 0.2}]",
                    curves(results["threads"], lambda row, y: y / row[0][1]),
                    ["x with lines lw 1.2 dt 2 lc rgb '#777777'"])
    drawn = subprocess.run(["gnuplot"], input=script, capture_output=True, text=True, check=True)
    # gnuplot leaves a group behind whenever it changes the pen.
    Path(output).write_text(re.sub(r"<g [^>]*>\s*</g>\n", "", drawn.stdout))


def main():
    target, source, destination, picture = sys.argv[1:]
    report = json.loads(Path(source).read_text())
    found = collect(report["benchmarks"])
    results = {"target": target, "date": report["context"]["date"][:10],
               "processor": processor(), "cores": report["context"]["num_cpus"],
               "load_before": report["context"]["load_avg"][0], **found}
    text = json.dumps(results, indent=1)
    # A pair of numbers is a line.
    text = re.sub(r"\[\s+([\d.e+-]+),\s+([\d.e+-]+)\s+\]", r"[\1, \2]", text)
    Path(destination).write_text(text + "\n")
    print_tables(results)
    draw(results, picture)


main()
