#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Renders the eight test sounds.

  render.py --wav FOLDER    the sounds before encoding, 16 bit
  render.py --mp3 FOLDER    the files that ship
  render.py --record FILE   a record of each sound's samples before encoding, for the test

The same command gives the same samples each time. --only NAME (may be repeated) leaves the others out.
Needs python3-numpy, python3-scipy, ffmpeg, fluidsynth and fluid-soundfont-gm.
"""

import argparse
import base64
import hashlib
import importlib
import json
import os
import pathlib
import subprocess
import sys
import tempfile

# Sums must not depend on how many cores share them.
os.environ["OMP_NUM_THREADS"] = os.environ["OPENBLAS_NUM_THREADS"] = "1"
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import numpy as np  # noqa: E402
from scipy.io import wavfile  # noqa: E402

import kit  # noqa: E402
import measure  # noqa: E402

SOUNDS = {
    "Piano": "piano",
    "Seagull": "seagull",
    "Thunder": "thunder",
    "Doorbell": "doorbell",
    "Shutter": "shutter",
    "Bubble": "bubble",
    "Typing": "keyboard",
    "Saxophone": "saxophone",
}
# The files shall reach -18 LUFS. The encoder turns everything down by 0.27 dB at this bit rate.
LOUDNESS = -17.7
# Encoding adds overshoot: stay well below the -1 dBTP that the files may reach.
CEILING = 10 ** (-2.5 / 20)
BITRATE = "192k"
# Samples of a frame, and of the delay that encoder and decoder add. A sound that ends with a frame leaves a decoder
# nothing to cut off, which some don't do.
FRAME, DELAY = 1152, 1105
# Seconds before the first sound: whoever clicks "Play" waits for that.
LEAD = 0.008
# The record holds a hash, and one in so many samples for machines whose mathematics round differently.
RECORD_STEP = 499


def write_wave(path, track):
    quantised = np.clip(np.round(track * 32767), -32768, 32767).astype("<i2")
    wavfile.write(path, kit.RATE, np.ascontiguousarray(quantised.T))
    return quantised


def levelled(track, scratch):
    """The track at the common loudness. Limiting takes loudness away, so it is measured again until it is right."""
    track = track / np.abs(track).max()
    gain = 0.2
    for _ in range(8):
        result = kit.limit(track * gain, CEILING)
        write_wave(scratch, result)
        missing = LOUDNESS - measure.loudness(scratch)[0]
        if missing == 0:
            break
        gain *= 10 ** (missing / 20)
    return result


def rendered(name):
    """The 16-bit samples of a sound, shape (2, samples)."""
    track = kit.trimmed(importlib.import_module(SOUNDS[name]).render(), LEAD)
    track = np.pad(track, ((0, 0), (0, -(track.shape[1] + DELAY) % FRAME)))
    with tempfile.TemporaryDirectory() as folder:
        scratch = pathlib.Path(folder, "sound.wav")
        return write_wave(scratch, levelled(track, scratch))


def record(quantised):
    return {
        "sha256": hashlib.sha256(np.ascontiguousarray(quantised.T).tobytes()).hexdigest(),
        "samples": base64.b64encode(np.ascontiguousarray(quantised[:, ::RECORD_STEP]).tobytes()).decode("ascii"),
    }


def recorded_samples(entry):
    return np.frombuffer(base64.b64decode(entry["samples"]), dtype="<i2").reshape(2, -1)


def encode(wave, target):
    subprocess.run(
        ["ffmpeg", "-v", "error", "-y", "-i", str(wave), "-codec:a", "libmp3lame", "-b:a", BITRATE,
         "-map_metadata", "-1", "-fflags", "+bitexact", "-flags:a", "+bitexact", str(target)],
        check=True,
    )


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--wav", type=pathlib.Path, metavar="FOLDER")
    parser.add_argument("--mp3", type=pathlib.Path, metavar="FOLDER")
    parser.add_argument("--record", type=pathlib.Path, metavar="FILE")
    parser.add_argument("--only", action="append", choices=SOUNDS, metavar="NAME")
    options = parser.parse_args()
    if not (options.wav or options.mp3 or options.record):
        parser.error("nothing to do: give --wav, --mp3 or --record")

    records = {}
    with tempfile.TemporaryDirectory() as folder:
        for name in options.only or SOUNDS:
            quantised = rendered(name)
            records[name] = record(quantised)
            wave = pathlib.Path(options.wav or folder, f"{name}.wav")
            wave.parent.mkdir(parents=True, exist_ok=True)
            wavfile.write(wave, kit.RATE, np.ascontiguousarray(quantised.T))
            if options.mp3:
                options.mp3.mkdir(parents=True, exist_ok=True)
                encode(wave, options.mp3 / f"{name}.mp3")
            print(name, f"{quantised.shape[1] / kit.RATE:.2f} s")
    if options.record:
        options.record.write_text(json.dumps(records, indent=1) + "\n", encoding="ascii")


if __name__ == "__main__":
    main()
