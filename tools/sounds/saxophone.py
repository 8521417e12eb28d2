# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""A blues lick on an alto saxophone, played from its score."""

import pathlib

import kit
import score

SEED = 22
SECONDS = 3.9


def render():
    track = score.play(pathlib.Path(__file__).with_name("saxophone.score"), SECONDS)
    track = kit.highpass(150, track)
    return kit.faded(kit.room(kit.generator(SEED), track, 1.1, 0.22, 4500, 0.015), 0.004, 0.35)
