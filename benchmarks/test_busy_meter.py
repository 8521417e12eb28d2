#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""When a benchmark in Python judges, measures again, or gives up."""
import contextlib
import io
import math
import tempfile
import unittest
import unittest.mock

import busy_meter


class FixedMeters:
    """Makes one meter after the other, each with its share."""

    def __init__(self, *shares):
        self.left = list(shares)

    def __call__(self):
        share = self.left.pop(0)
        meter = busy_meter.BusyMeter()
        meter.share = lambda: share
        return meter


class BusyMeterTest(unittest.TestCase):
    def judged(self, is_within_bounds, *shares):
        meters = FixedMeters(*shares)
        with contextlib.redirect_stdout(io.StringIO()) as output:
            code = busy_meter.judge(lambda: is_within_bounds, meters)
        self.assertEqual(meters.left, [])
        return code, output.getvalue()

    def test_quiet(self):
        self.assertEqual(self.judged(True, 0.1)[0], 0)
        self.assertEqual(self.judged(False, 0.25)[0], 1)

    def test_quiet_later(self):
        code, output = self.judged(False, 0.9, 0.26, 0.2)
        self.assertEqual(code, 1)
        self.assertEqual(output.count("The machine was busy: once more.\n"), 2)
        self.assertIn("waited for a processor in 20 % of the time", output)

    def test_never_quiet(self):
        code, output = self.judged(True, 0.9, 0.9, 0.9)
        self.assertEqual(code, 3)
        self.assertIn("NOT JUDGED", output)
        self.assertNotIn("Within", output)

    def test_unknown(self):
        self.assertEqual(self.judged(True, math.nan)[0], 0)

    def test_share_of_the_time(self):
        with tempfile.NamedTemporaryFile("w+", encoding="ascii") as file:
            file.write("some avg10=0.00 avg60=0.00 avg300=0.00 total=5000000\nfull total=9\n")
            file.flush()
            meter = busy_meter.BusyMeter(file.name)
            self.assertEqual(meter.share(), 0)
            file.seek(0)
            file.write("some avg10=0.00 avg60=0.00 avg300=0.00 total=9000000000\n")
            file.flush()
            self.assertEqual(meter.share(), 1)
        self.assertTrue(math.isnan(busy_meter.BusyMeter("/nonexistent").share()))

    def test_busiest_pause(self):
        pauses = busy_meter.PauseMeter()
        pauses.PAUSE_SECONDS = 0
        shares = iter([0.1, 0.3, 0.2])
        with unittest.mock.patch.object(busy_meter.BusyMeter, "share", lambda self: next(shares)):
            self.assertEqual([pauses.pause(), pauses.pause(), pauses.pause()], [0.1, 0.3, 0.2])
        self.assertEqual(pauses.share(), 0.3)
        self.assertTrue(math.isnan(pauses.anew().share()))


if __name__ == "__main__":
    unittest.main()
