#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Measures the test sounds that ship, and renders them again."""

import itertools
import json
import pathlib
import sys
import tempfile
import unittest

TREE = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(TREE / "tools" / "sounds"))

import numpy as np  # noqa: E402
from scipy import ndimage, signal  # noqa: E402

import kit  # noqa: E402
import measure  # noqa: E402
import render  # noqa: E402

SHIPPED = TREE / "share" / "sounds"
RECORD = pathlib.Path(__file__).with_name("recorded.json")


def level(track, seconds):
    """Root mean square over a sliding window, one value per sample."""
    return np.sqrt(ndimage.uniform_filter1d(np.sum(track**2, axis=0), kit.samples(seconds)) + 1e-12)


def onsets(track, window, rise, apart):
    """Moments at which the level has grown by the factor rise within two windows."""
    loud = level(track, window)
    step = kit.samples(2 * window)
    floor = 0.05 * loud.max()
    growth = loud[step:] / (loud[:-step] + floor)
    peaks, _ = signal.find_peaks(growth, height=rise, distance=kit.samples(apart))
    return peaks / kit.RATE


def stretch(track, first, last):
    return track[:, kit.samples(first) : kit.samples(last)]


def centre(track):
    hertz, power = measure.spectrum(track)
    return np.sum(hertz * power) / np.sum(power)


def strongest(track, low, high):
    """The frequency of the strongest partial between two frequencies."""
    mono = track.sum(axis=0)
    power = np.abs(np.fft.rfft(mono * np.hanning(len(mono)), 1 << 17)) ** 2
    hertz = np.fft.rfftfreq(1 << 17, 1 / kit.RATE)
    inside = (hertz >= low) & (hertz <= high)
    return hertz[inside][np.argmax(power[inside])]


def through_small_speaker(track):
    """What is left of a sound on a laptop in a room that is not quiet."""
    noise = kit.generator(7).standard_normal(track.shape)
    return kit.bandpass(300, 8000, track, 1) + 0.001 * noise


class Shipped(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.measures = {name: measure.measures(SHIPPED / f"{name}.mp3") for name in render.SOUNDS}
        cls.tracks = {name: measure.decoded(SHIPPED / f"{name}.mp3") for name in render.SOUNDS}

    def every(self, check):
        for name, values in self.measures.items():
            with self.subTest(sound=name):
                check(values)

    def test_there_are_no_others(self):
        self.assertEqual({path.stem for path in SHIPPED.glob("*.mp3")}, set(render.SOUNDS))

    def test_format(self):
        def check(values):
            self.assertEqual((values["codec"], values["rate"], values["channels"]), ("mp3", 44100, 2))
            self.assertGreaterEqual(values["kbit"], 128)

        self.every(check)

    def test_length(self):
        self.every(lambda values: self.assertTrue(2 <= values["seconds"] <= 4, values["seconds"]))

    def test_loudness(self):
        self.every(lambda values: self.assertAlmostEqual(values["lufs"], -18, delta=0.5))

    def test_true_peak(self):
        self.every(lambda values: self.assertLessEqual(values["true_peak"], -1))

    def test_no_click_at_the_ends(self):
        self.every(lambda values: self.assertLess(values["edge"], -60))

    def test_small_speaker_carries_it(self):
        self.every(lambda values: self.assertGreater(values["share"], 0.6))

    def test_both_channels_sound(self):
        for name, track in self.tracks.items():
            with self.subTest(sound=name):
                left, right = np.sum(track**2, axis=1)
                self.assertLess(abs(10 * np.log10(left / right)), 3)

    def test_one_speaker_carries_both_channels(self):
        for name, track in self.tracks.items():
            with self.subTest(sound=name):
                self.assertGreater(np.sum(track.mean(axis=0) ** 2), 0.5 * np.mean(np.sum(track**2, axis=1)))

    def test_sound_begins_at_once(self):
        self.every(lambda values: self.assertLess(values["onset"], 0.01))
        for name, track in self.tracks.items():
            with self.subTest(sound=name):
                loud = level(track, 0.01)
                self.assertLess(np.argmax(loud > 0.2 * loud.max()) / kit.RATE, 0.25)

    def test_told_apart_on_a_small_speaker(self):
        profiles = {name: measure.profile(track) for name, track in self.tracks.items()}
        for name, track in self.tracks.items():
            heard = measure.profile(through_small_speaker(track))
            own = measure.distance(heard, profiles[name])
            for other in set(profiles) - {name}:
                with self.subTest(heard=name, other=other):
                    self.assertGreater(measure.distance(heard, profiles[other]), 2 * own)

    def test_no_two_are_alike(self):
        profiles = {name: measure.profile(track) for name, track in self.tracks.items()}
        for one, other in itertools.combinations(profiles, 2):
            with self.subTest(one=one, other=other):
                self.assertGreater(measure.distance(profiles[one], profiles[other]), 0.5)

    def test_documented_measures_are_these(self):
        documented = (TREE / "docs" / "sounds" / "README.md").read_text(encoding="utf-8").splitlines()
        for line in measure.table(SHIPPED, render.SOUNDS):
            self.assertIn(line, documented)

    def test_seagull_cries_fall(self):
        track = self.tracks["Seagull"]
        for first, last in ((0.17, 0.57), (0.92, 1.25), (1.67, 1.86), (2.02, 2.20), (2.37, 2.57)):
            with self.subTest(cry=first):
                begin = strongest(stretch(track, first, first + 0.06), 750, 1400)
                end = strongest(stretch(track, last - 0.06, last), 650, 1400)
                self.assertLess(end, 0.93 * begin)

    def test_thunder_cracks_and_rolls_away(self):
        track = self.tracks["Thunder"]
        self.assertLess(np.argmax(level(track, 0.02)) / kit.RATE, 0.4)
        self.assertLess(centre(stretch(track, 1.5, 3.5)), 0.7 * centre(stretch(track, 0.05, 0.4)))
        # It rolls: the level keeps surging after the crack.
        tail = level(stretch(track, 0.6, 3.0), 0.08)
        peaks, _ = signal.find_peaks(20 * np.log10(tail), prominence=3, distance=kit.samples(0.15))
        self.assertGreaterEqual(len(peaks), 3)

    def test_doorbell_falls_by_a_major_third(self):
        track = self.tracks["Doorbell"]
        ding = strongest(stretch(track, 0.1, 0.7), 300, 6000)
        dong = strongest(stretch(track, 1.2, 2.4), 300, 6000)
        self.assertAlmostEqual(12 * np.log2(ding / dong), 4, delta=0.15)
        self.assertAlmostEqual(strongest(stretch(track, 0.1, 0.7), 1200, 2500) / ding, 2.76, delta=0.02)

    def test_shutter_takes_three_pictures(self):
        track = np.hstack((kit.silence(0.05), self.tracks["Shutter"]))  # a rise is seen only after rest
        loud = level(track, 0.05) > 0.02
        edges = np.flatnonzero(np.diff(np.concatenate(([0], loud.astype(int), [0])))).reshape(-1, 2) / kit.RATE
        self.assertEqual(len(edges), 3)
        for first, last in edges:
            blows = onsets(stretch(track, max(0, first - 0.05), first + 0.25), 0.006, 2.2, 0.02)
            self.assertGreaterEqual(len(blows), 3, "mirror, curtain and mirror again")
            self.assertGreater(last - first, 0.35, "the motor runs on")

    def test_bubbles_rise(self):
        track = self.tracks["Bubble"]
        for start in (0.006, 0.236, 0.866, 1.726, 2.566):
            with self.subTest(bubble=start):
                begin = strongest(stretch(track, start + 0.005, start + 0.035), 300, 1500)
                end = strongest(stretch(track, start + 0.08, start + 0.11), 300, 1500)
                self.assertGreater(end, 1.15 * begin)

    def test_typing_has_a_human_rhythm(self):
        moments = onsets(self.tracks["Typing"], 0.008, 2.5, 0.03)
        pauses = np.diff(moments)
        self.assertGreater(len(moments), 20)
        self.assertGreater(np.std(pauses) / np.mean(pauses), 0.2)

    def test_phrases_have_their_notes(self):
        piano, saxophone = self.tracks["Piano"], self.tracks["Saxophone"]
        for track, first, last, hertz in (
            (piano, 0.04, 0.26, 880.00), (piano, 0.30, 0.52, 1046.50), (piano, 0.83, 1.03, 1174.66),
            (saxophone, 0.05, 0.22, 293.66), (saxophone, 1.07, 1.25, 523.25), (saxophone, 2.25, 2.45, 392.00),
        ):
            with self.subTest(at=first):
                found = strongest(stretch(track, first, last), hertz / 1.1, hertz * 1.1)
                self.assertAlmostEqual(1200 * np.log2(found / hertz), 0, delta=25)


class Rendered(unittest.TestCase):
    def test_same_samples_as_recorded(self):
        entries = json.loads(RECORD.read_text(encoding="ascii"))
        self.assertEqual(set(entries), set(render.SOUNDS))
        for name in render.SOUNDS:
            with self.subTest(sound=name):
                quantised = render.rendered(name)
                entry = render.record(quantised)
                if entry["sha256"] != entries[name]["sha256"]:
                    print(f"{name}: not the same to the last bit; comparing within 2 steps of 65536")
                    expected = render.recorded_samples(entries[name]).astype(int)
                    found = render.recorded_samples(entry).astype(int)
                    self.assertEqual(found.shape, expected.shape)
                    self.assertLessEqual(np.abs(found - expected).max(), 2)
                self.compare_with_shipped(name, quantised / 32767)

    def compare_with_shipped(self, name, track):
        shipped = measure.decoded(SHIPPED / f"{name}.mp3")
        self.assertEqual(shipped.shape, track.shape)
        # The encoder turns down a little: compare shapes, not levels.
        gain = np.sum(shipped * track) / np.sum(track**2)
        remainder = np.sum((shipped - gain * track) ** 2) / np.sum(shipped**2)
        self.assertLess(10 * np.log10(remainder), -12, "the file is not the encoded rendering")

    def test_encoded_again_it_measures_the_same(self):
        with tempfile.TemporaryDirectory() as folder:
            wave = pathlib.Path(folder, "Doorbell.wav")
            file = pathlib.Path(folder, "Doorbell.mp3")
            render.write_wave(wave, render.rendered("Doorbell") / 32767)
            render.encode(wave, file)
            self.assertAlmostEqual(measure.loudness(file)[0], measure.loudness(SHIPPED / "Doorbell.mp3")[0], delta=0.1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
