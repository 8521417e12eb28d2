# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""A phrase on a grand piano, played from its score."""

import pathlib

import kit
import score

SEED = 21
SECONDS = 3.9


def render():
    track = score.play(pathlib.Path(__file__).with_name("piano.score"), SECONDS)
    track = kit.narrowed(kit.highpass(150, track), 0.5)
    return kit.faded(kit.room(kit.generator(SEED), track, 0.9, 0.18, 4500, 0.012), 0.004, 0.6)
