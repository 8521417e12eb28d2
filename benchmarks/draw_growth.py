#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Draws the growth tables of a document: each table between its "growth" and "reports" markers whose
first column counts something becomes a picture in PICTURE, both axes logarithmic.

    benchmarks/draw_growth.py docs/benchmarks.md docs/images/growth.svg

Exit codes: 0 drawn, 1 the document has no such table.
"""
import argparse
import pathlib
import re
import sys

import matplotlib

matplotlib.use("svg")
matplotlib.rcParams["svg.hashsalt"] = "growth"  # the same figures give the same file
from matplotlib import pyplot  # noqa: E402  the back end is chosen before

COLUMNS = 2
WIDTH, HEIGHT = 5.2, 3.2  # inches of one picture


def number(cell):
    """The figure of a cell, or None if there is anything else in it."""
    is_figure = re.fullmatch(r"-?\d[\d,]*(\.\d+)?", cell)
    return float(cell.replace(",", "")) if is_figure else None


def tables(text):
    """The names of the columns and the rows of each table that counts something."""
    found = []
    for block in re.findall(r"(?:^\|.*\|\n)+", text, re.MULTILINE):
        rows = [[cell.strip() for cell in line.strip("|\n").split("|")] for line in block.splitlines()]
        names, values = rows[0], [[number(cell) for cell in row] for row in rows[2:]]
        if len(values) > 1 and all(row[0] is not None for row in values):
            found.append((names, values))
    return found


def draw(axes, names, rows):
    for column, name in enumerate(names[1:], 1):
        points = [(row[0], row[column]) for row in rows if row[column] is not None and row[column] > 0]
        if points:
            axes.plot(*zip(*points), marker="o", markersize=3, label=name)
    axes.set_xscale("log")
    axes.set_yscale("log")
    axes.set_xlabel(names[0])
    axes.grid(True, which="major", alpha=0.3)
    axes.legend(fontsize="x-small")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("document", type=pathlib.Path)
    parser.add_argument("picture", type=pathlib.Path)
    options = parser.parse_args()
    text = options.document.read_text(encoding="utf-8")
    parts = re.findall(r"<!-- begin (?:growth|reports) -->(.*?)<!-- end", text, re.DOTALL)
    found = [table for part in parts for table in tables(part)]
    if not found:
        print(f"{options.document} has no growth tables", file=sys.stderr)
        return 1
    lines = -(-len(found) // COLUMNS)
    figure, fields = pyplot.subplots(lines, COLUMNS, figsize=(COLUMNS * WIDTH, lines * HEIGHT), squeeze=False)
    for axes, (names, rows) in zip(fields.flat, found):
        draw(axes, names, rows)
    for axes in list(fields.flat)[len(found):]:
        axes.remove()
    figure.tight_layout()
    figure.savefig(options.picture, metadata={"Date": None})
    return 0


if __name__ == "__main__":
    sys.exit(main())
