#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Draws the results with gnuplot: for each target a plot with a panel for each operation, and one of
# the means. Usage: plots.py FOLDER, where FOLDER has the results as TARGET.json
import re
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
from results import OPERATIONS, OURS, PEERS, Results  # noqa: E402

TARGETS = ["x86_64", "i686"]
# Colours that people tell apart however they see colours, and shapes besides.
STYLES = {"protobuf": "pt 6 ps 0.8 lw 1.6 lc rgb '#0072B2'",
          "protobuf_lite": "pt 8 ps 0.8 lw 1.6 lc rgb '#56B4E9'",
          "protobuf-c": "pt 4 ps 0.7 lw 1.6 lc rgb '#009E73'",
          "nanopb": "pt 2 ps 0.7 lw 1.6 lc rgb '#9467BD'",
          "protozero": "pt 12 ps 0.8 lw 1.6 lc rgb '#C79A00'",
          OURS: "pt 7 ps 1.0 lc rgb '#C1272D'"}
TITLES = {OURS: "ethsw_mgmt", "protobuf": "protobuf C++", "protobuf_lite": "protobuf C++ lite"}
OPERATION_TITLES = {"measure": "Measure", "measure+encode": "Measure and encode",
                    "encode": "Encode, size known", "decode": "Decode into an arena",
                    "decode+free": "Decode and free, malloc", "duplicate": "Duplicate"}

# A light ground of its own, so that it reads on a dark page, too.
HEAD = """\
set terminal svg size {width},{height} noenhanced font 'DejaVu Sans,Helvetica,sans-serif,12' \
background '#FBFBF8' linewidth 1
set multiplot
set logscale x 2
set format x '%g'
set xtics out nomirror scale 0.4 font ',10' textcolor rgb '#444444'
set ytics out nomirror scale 0 textcolor rgb '#222222'
set grid xtics ytics lt 1 lw 0.6 lc rgb '#DDDDD6'
set border 1 lw 0.8 lc rgb '#999999'
set label 1 '{title}' at screen 0.5,{title_at} center font ',17' textcolor rgb '#222222'
set label 2 "time, relative to the quickest peer's (1): further left is quicker" \
at screen 0.5,{subtitle_at} center font ',12' textcolor rgb '#555555'
unset key
"""
# Behind the lowest row, which is the mean.
BAND = """\
set object 1 rectangle from graph 0,first 0.5 to graph 1,first 1.5 behind \
fc rgb '#EDEBE0' fillstyle solid noborder
"""


def legend(height):
    """The implementations side by side, each with its point."""
    text = ""
    for number, name in enumerate([OURS, *PEERS]):
        text += (f"set label {number + 3} '{TITLES.get(name, name)}' "
                 f"at screen {0.16 + 0.125 * number:.3f},{height} left offset 0.8,-0.25 "
                 f"font ',12' textcolor rgb '#222222' point {STYLES[name]}\n")
    return text


def blocks(rows):
    """gnuplot's data: a block for each implementation, of its ratios and their rows."""
    text = ""
    for implementation in [*PEERS, OURS]:
        name = implementation.replace("-", "_")
        points = [f"{ratio(implementation)} {len(rows) - y}" for y, (_, ratio) in enumerate(rows)
                  if ratio(implementation)]
        text += f"${name} << EOD\n" + "\n".join(points) + "\nEOD\n"
    return text


def panel(title, rows, place, limits):
    """One panel: rows of a label and a function that tells the ratio of an implementation."""
    left, right, bottom, top = place
    tics = ", ".join(f"'{label}' {len(rows) - y}" for y, (label, _) in enumerate(rows))
    curves = ", ".join(
        f"${name.replace('-', '_')} using 1:2 with points {STYLES[name]}"
        for name in [*PEERS, OURS])
    return (f"{blocks(rows)}"
            f"set lmargin at screen {left:.4f}\nset rmargin at screen {right:.4f}\n"
            f"set bmargin at screen {bottom:.4f}\nset tmargin at screen {top:.4f}\n"
            f"set title '{title}' font ',14' offset 0,-0.4 textcolor rgb '#222222'\n"
            f"set xrange [{limits[0]}:{limits[1]}]\nset yrange [0.3:{len(rows) + 0.7}]\n"
            f"set ytics ({tics})\n"
            f"set arrow 1 from 1,graph 0 to 1,graph 1 nohead lw 1.4 lc rgb '#777777' back\n"
            f"plot {curves}\nunset label\n")


def limits(ratios):
    """Powers of two around all of them."""
    low, high = 1, 1
    while low > 1 / 2 or low > min(ratios):
        low /= 2
    while high < max(ratios) * 1.1:
        high *= 2
    return low, high


def rows_of(results, operation):
    """The workloads, those that do not count marked, and the mean."""
    rows = []
    for name in results.names():
        label = name + (" *" if results.workloads[name]["extra"] else "")
        rows.append((label, lambda implementation, name=name: results.ratio(
            name, operation, implementation)))
    rows.append(("GEOMETRIC MEAN", lambda implementation: results.mean_ratio(
        operation, implementation)))
    return rows


def draw(output, title, size, heights, panels, band=False):
    """A head and panels, each a title, rows, and a place."""
    ratios = [ratio(name) for _, rows, _ in panels for _, ratio in rows for name in STYLES]
    both = limits(list(filter(None, ratios)))
    script = HEAD.format(width=size[0], height=size[1], title=title, title_at=heights[0],
                         subtitle_at=heights[1]) + legend(heights[2])
    if band:
        script += BAND
    for panel_title, rows, place in panels:
        script += panel(panel_title, rows, place, both)
    drawn = subprocess.run(["gnuplot"], input=script, capture_output=True, text=True, check=True)
    # gnuplot leaves a group behind whenever it changes the pen, and tells what is the default.
    picture = re.sub(r"<g [^>]*>\s*</g>\n", "", drawn.stdout)
    defaults = r' color="black"| stroke-linecap="butt"| stroke-linejoin="miter"'
    output.write_text(re.sub(defaults, "", picture))


def draw_target(results, output):
    panels = []
    for number, operation in enumerate(OPERATIONS):
        column, row = number % 2, number // 2
        left, top = (0.205, 0.595)[column], 0.905 - row * 0.305
        # Names stand at the left panel of a row only.
        rows = [(label if column == 0 else "", ratio)
                for label, ratio in rows_of(results, operation)]
        panels.append((OPERATION_TITLES[operation], rows,
                       (left, left + 0.375, top - 0.255, top)))
    draw(output, f"ethsw_mgmt and its peers on {results.target}", (1080, 1400),
         (0.983, 0.966, 0.946), panels, band=True)


def draw_means(every, output):
    panels = []
    for number, results in enumerate(every):
        left = (0.17, 0.585)[number]
        rows = [(OPERATION_TITLES[operation] if number == 0 else "",
                 lambda implementation, results=results, operation=operation:
                 results.mean_ratio(operation, implementation)) for operation in OPERATIONS]
        panels.append((results.target, rows, (left, left + 0.39, 0.09, 0.71)))
    draw(output, "ethsw_mgmt and its peers: geometric means over 15 workloads", (1080, 420),
         (0.95, 0.885, 0.82), panels)


def main():
    folder = Path(sys.argv[1])
    every = [Results(path) for path in (folder / f"{target}.json" for target in TARGETS)
             if path.exists()]
    for results in every:
        draw_target(results, folder / f"{results.target}.svg")
    draw_means(every, folder / "means.svg")


main()
