# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""The rule of BusyMeter.h and BenchmarkOptions::judge() for benchmarks in Python."""
import math
import time

PRESSURE = "/proc/pressure/cpu"
MOST_SHARE = 0.25
MOST_ATTEMPTS = 3
NOT_JUDGED = 3


class BusyMeter:
    """In which share of the time since its construction a thread waited for a processor."""

    def __init__(self, pressure=PRESSURE):
        self._pressure = pressure
        self._before = self._waited()
        self._began = time.monotonic()

    def share(self):
        """NaN if the kernel doesn't tell."""
        passed = max(1e-6, time.monotonic() - self._began)
        share = (self._waited() - self._before) / passed
        return share if math.isnan(share) else min(1.0, share)

    def _waited(self):
        try:
            with open(self._pressure, encoding="ascii") as file:
                return int(file.readline().rsplit("total=", 1)[1]) / 1e6
        except (OSError, IndexError, ValueError):
            return math.nan


class PauseMeter:
    """How busy the machine is while the measured program doesn't run: for one that keeps all
    processors busy by itself. The share is that of the busiest pause."""
    PAUSE_SECONDS = 1

    def __init__(self):
        self._shares = []

    def anew(self):
        self._shares.clear()
        return self

    def pause(self):
        meter = BusyMeter()
        time.sleep(self.PAUSE_SECONDS)
        self._shares.append(meter.share())
        return self._shares[-1]

    def share(self):
        return max(self._shares, default=math.nan)


def judge(measure, meter=BusyMeter):
    """The exit code for measure(), which returns whether all bounds are kept, and is repeated on a
    busy machine."""
    for attempt in range(1, MOST_ATTEMPTS + 1):
        busy = meter()
        is_within_bounds = measure()
        share = busy.share()
        print("\nMachine: threads waited for a processor in %.0f %% of the time." % (100 * share))
        if not share > MOST_SHARE:
            print("Within the bounds." if is_within_bounds else "OUT OF BOUNDS.", flush=True)
            return 0 if is_within_bounds else 1
        if attempt < MOST_ATTEMPTS:
            print("The machine was busy: once more.", flush=True)
    print("NOT JUDGED: the machine was never quiet.")
    return NOT_JUDGED
