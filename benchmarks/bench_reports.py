#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Time and memory of the room table for 1 to 100,000 reports. draw_growth.py draws the table.

Usage: bench_reports.py PROGRAM [--smoke]
Ends with 1 if 10,000 reports take more than a second, or any number more than 64 MB above one; with 3
if the machine was too busy to judge that."""
import argparse
import collections
import os
import statistics
import subprocess
import sys
import tempfile
import time
import uuid

from busy_meter import PauseMeter, judge

COUNTS = (1, 10, 100, 1000, 10000, 100000)
SMOKE_COUNTS = (1, 10)
ROUNDS = 5
MANY = 10000
MOST_SECONDS = 1.0
MOST_EXTRA_MB = 64
KIB_PER_MB = 1024

Row = collections.namedtuple("Row", "count seconds processor megabytes busy")


def sample(program, folder):
    """The report of a scripted run that answers everything, about 14 KB."""
    path = os.path.join(folder, "sample.json")
    subprocess.run([program, "--scenario", "all-well", "--tour", folder + "/tour", "--report", path,
                    "--language", "en"], check=True, stdout=subprocess.DEVNULL)
    with open(path, encoding="utf-8") as file:
        return file.read()


def write_reports(text, folder, count):
    """Each has an id of its own, and every third a failed camera."""
    own_id = text.split('"id": "')[1].split('"')[0]
    failed = text.replace('"check": "camera"', '"causes": ["busy"], "check": "camera"')
    with open(os.path.join(folder, "list"), "w", encoding="utf-8") as names:
        for number in range(count):
            path = os.path.join(folder, "r%06d.json" % number)
            content = failed if number % 3 == 0 else text
            with open(path, "w", encoding="utf-8") as file:
                file.write(content.replace(own_id, str(uuid.UUID(int=number))))
            names.write(path + "\n")
    return os.path.join(folder, "list")


def measure(program, names, count):
    """Seconds, seconds of processors, and MB of one run."""
    with open(names, encoding="utf-8") as file:
        head = "".join(file.readline() for _ in range(count))
    with tempfile.NamedTemporaryFile("w", encoding="utf-8") as some:
        some.write(head)
        some.flush()
        start = time.perf_counter()
        child = subprocess.Popen([program, "report", "--format", "room", "--files-from", some.name],
                                 stdout=subprocess.DEVNULL)
        _, status, usage = os.wait4(child.pid, 0)
        seconds = time.perf_counter() - start
        child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        sys.exit("The program ended with %d" % child.returncode)
    return seconds, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / KIB_PER_MB


def measure_row(program, names, count, meter):
    busy = meter.pause()
    runs = [measure(program, names, count) for _ in range(ROUNDS)]
    return Row(count, statistics.median(run[0] for run in runs),
               statistics.median(run[1] for run in runs), max(run[2] for run in runs), busy)


def measure_all(program, names, counts, meter):
    """Prints a line for each number of reports."""
    print("| reports | s | s of the processors | MB | threads waited before |\n|---|---|---|---|---|")
    rows = []
    for count in counts:
        rows.append(measure_row(program, names, count, meter))
        print("| {:,} | {:.3f} | {:.3f} | {:.1f} | {:.0%} |".format(*rows[-1]), flush=True)
    return rows


def are_within_bounds(rows):
    is_fast = all(row.seconds <= MOST_SECONDS for row in rows if row.count <= MANY)
    is_small = all(row.megabytes <= rows[0].megabytes + MOST_EXTRA_MB for row in rows)
    return is_fast and is_small


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--smoke", action="store_true")
    options = parser.parse_args()
    counts = SMOKE_COUNTS if options.smoke else COUNTS
    with tempfile.TemporaryDirectory() as folder:
        os.environ.update(HOME=folder, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
        names = write_reports(sample(options.program, folder), folder, counts[-1])
        meter = PauseMeter()
        if options.smoke:
            measure_all(options.program, names, counts, meter)
            return 0
        return judge(lambda: are_within_bounds(measure_all(options.program, names, counts, meter)), meter.anew)


sys.exit(main())
