# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Reads a score, writes it as a MIDI file and has fluidsynth play it from the sound font.

A score has one statement per line; beats count from 0:
  tempo BEATS_PER_MINUTE          program NUMBER (0 to 127, General MIDI)
  note BEAT LENGTH PITCH FORCE    pedal DOWN UP
  control NUMBER BEAT VALUE [to BEAT VALUE]
  bend BEAT SEMITONES [to BEAT SEMITONES]
"""

import pathlib
import struct
import subprocess
import tempfile

import numpy as np

import kit

FONT = pathlib.Path("/usr/share/sounds/sf2/FluidR3_GM.sf2")
FONT_PACKAGE = "fluid-soundfont-gm"
DIVISION = 480
RAMP_STEPS_PER_BEAT = 24
BEND_RANGE = 2
PEDAL = 64
PITCHES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}


def key_number(name):
    step = PITCHES[name[0]] + name.count("#") - name.count("b")
    return 12 * (int(name[-1]) + 1) + step


def ramp(words):
    """(beat, value) pairs of BEAT VALUE [to BEAT VALUE]."""
    first, value = float(words[0]), float(words[1])
    if len(words) == 2:
        return [(first, value)]
    last, goal = float(words[3]), float(words[4])
    count = max(2, int((last - first) * RAMP_STEPS_PER_BEAT))
    return [(first + (last - first) * i / count, value + (goal - value) * i / count) for i in range(count + 1)]


def bend_bytes(semitones):
    value = min(16383, max(0, int(round(8192 + 8191 * semitones / BEND_RANGE))))
    return bytes((0xE0, value & 0x7F, value >> 7))


def events(text):
    """The tempo and the (tick, order, message) events of a score."""
    tempo = 120.0
    result = []

    def add(beat, order, message):
        result.append((int(round(beat * DIVISION)), order, bytes(message)))

    for line in text.splitlines():
        if not line.strip() or line.startswith("#"):
            continue
        statement, *rest = line.split()
        if statement == "tempo":
            tempo = float(rest[0])
        elif statement == "program":
            add(0, 0, (0xC0, int(rest[0])))
        elif statement == "note":
            beat, length, key, force = float(rest[0]), float(rest[1]), key_number(rest[2]), int(rest[3])
            add(beat, 3, (0x90, key, force))
            add(beat + length, 2, (0x80, key, 64))
        elif statement == "pedal":
            add(float(rest[0]), 1, (0xB0, PEDAL, 127))
            add(float(rest[1]), 1, (0xB0, PEDAL, 0))
        elif statement == "control":
            for beat, value in ramp(rest[1:]):
                add(beat, 1, (0xB0, int(rest[0]), int(round(value))))
        elif statement == "bend":
            for beat, value in ramp(rest):
                add(beat, 1, bend_bytes(value))
        else:
            raise ValueError(f"unknown statement in the score: {line}")
    return tempo, sorted(result)


def variable_length(number):
    data = [number & 0x7F]
    while number > 0x7F:
        number >>= 7
        data.insert(0, 0x80 | (number & 0x7F))
    return bytes(data)


def midi(text):
    tempo, messages = events(text)
    track = b"\x00\xff\x51\x03" + int(round(60e6 / tempo)).to_bytes(3, "big")
    now = 0
    for tick, _, message in messages:
        track += variable_length(tick - now) + message
        now = tick
    track += variable_length(4 * DIVISION) + b"\xff\x2f\x00"
    header = struct.pack(">4sIHHH", b"MThd", 6, 0, 1, DIVISION)
    return header + struct.pack(">4sI", b"MTrk", len(track)) + track


def play(score, seconds):
    """The score as a stereo track of the given length, without fluidsynth's own reverb and chorus."""
    if not FONT.is_file():
        raise SystemExit(f"{FONT} is missing: install the package {FONT_PACKAGE}")
    with tempfile.TemporaryDirectory() as folder:
        song = pathlib.Path(folder, "song.mid")
        wave = pathlib.Path(folder, "song.raw")
        song.write_bytes(midi(score.read_text(encoding="utf-8")))
        subprocess.run(
            ["fluidsynth", "-n", "-i", "-q", "-R", "0", "-C", "0", "-g", "0.5", "-r", str(kit.RATE),
             "-o", "synth.cpu-cores=1", "-O", "float", "-E", "little", "-T", "raw",
             "-F", str(wave), str(FONT), str(song)],
            check=True, stdout=subprocess.DEVNULL,
        )
        data = np.fromfile(wave, dtype="<f4").reshape(-1, 2)
    track = kit.silence(seconds)
    played = data.T.astype(np.float64)[:, : track.shape[1]]
    track[:, : played.shape[1]] = played
    return track
