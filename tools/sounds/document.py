#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Draws a spectrogram of each test sound and renews the table of measures.

  document.py SOUNDS OUT    reads SOUNDS/*.mp3, writes OUT/*.png and the table in OUT/README.md

Needs what render.py needs, and python3-matplotlib.
"""

import argparse
import io
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import matplotlib  # noqa: E402
import numpy as np  # noqa: E402
from PIL import Image  # noqa: E402
from scipy import signal  # noqa: E402

matplotlib.use("Agg")
from matplotlib import pyplot  # noqa: E402

import kit  # noqa: E402
import measure  # noqa: E402
from render import SOUNDS  # noqa: E402

RANGE_DB = 70
TOP_KILOHERTZ = 10
PALETTE_COLOURS = 128


def draw(name, track, target):
    # Struck sounds need a short window, voices a long one; 1024 samples (23 ms) serve both.
    hertz, moment, power = signal.spectrogram(track.mean(axis=0), kit.RATE, "hann", 1024, 896)
    level = 10 * np.log10(power + 1e-14)
    level -= level.max()
    figure, (above, below) = pyplot.subplots(
        2, 1, figsize=(8, 4.4), sharex=True, height_ratios=(1, 4), layout="constrained",
    )
    above.plot(np.arange(track.shape[1]) / kit.RATE, track.mean(axis=0), linewidth=0.3, color="#333333")
    above.set_ylim(-0.9, 0.9)
    above.set_title(name)
    above.set_yticks([])
    picture = below.pcolormesh(
        moment, hertz / 1000, level, vmin=-RANGE_DB, vmax=0, cmap="magma", shading="nearest", rasterized=True,
    )
    below.set_ylim(0, TOP_KILOHERTZ)
    below.set_xlim(0, track.shape[1] / kit.RATE)
    below.set_xlabel("seconds")
    below.set_ylabel("kHz")
    figure.colorbar(picture, ax=below, label="dB")
    buffer = io.BytesIO()
    figure.savefig(buffer, dpi=100, format="png")
    pyplot.close(figure)
    Image.open(buffer).convert("RGB").quantize(PALETTE_COLOURS).save(target, optimize=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("sounds", type=pathlib.Path, metavar="SOUNDS")
    parser.add_argument("out", type=pathlib.Path, metavar="OUT")
    options = parser.parse_args()
    for name in SOUNDS:
        draw(name, measure.decoded(options.sounds / f"{name}.mp3"), options.out / f"{name.lower()}.png")
    readme = options.out / "README.md"
    lines = readme.read_text(encoding="utf-8").splitlines()
    rows = [number for number, line in enumerate(lines) if line.startswith("|")]
    lines[rows[0] : rows[-1] + 1] = measure.table(options.sounds, SOUNDS)
    readme.write_text("\n".join(lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
