# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Someone types a line on a keyboard with clicking switches and ends it with the return key.

Each stroke is four blows: the finger lands, the switch clicks, the key reaches the bottom, and a good while later it
snaps back up. Where a key sits decides where it is heard and, a little, how it sounds. The rhythm is that of a person:
fast where the hands alternate, slower on reaches, a pause after each word.
"""

import numpy as np

import kit

SEED = 1874
SECONDS = 3.8
TEXT = "yes i can hear you now\n"
ROWS = ("qwertyuiop", "asdfghjkl", "zxcvbnm")


def position(key):
    """Column from 0 to 1 and row from 0 (top) to 3."""
    for row, keys in enumerate(ROWS):
        if key in keys:
            return (keys.index(key) + 0.4 * row) / 10, row
    return (0.45, 3) if key == " " else (1.05, 1)


def blow(rng, scale, weight, bright):
    partials = []
    for hertz, gain, decay in (
        (430, 0.32, 0.014), (760, 0.45, 0.011), (1240, 0.5, 0.009), (2150, 0.7, 0.0065), (3300, 0.8, 0.0050),
        (4700, 0.6, 0.0035), (6300, 0.3, 0.0025),
    ):
        tilt = (hertz / 1500) ** bright
        partials.append((hertz * scale * (1 + 0.03 * rng.standard_normal()), gain * tilt, decay))
    return weight * kit.knock(rng, 0.09, partials, 0.0003, 0.7, (1400, 7500), 0.0042)


def stroke(rng, key, force):
    column, row = position(key)
    sound = np.zeros(kit.samples(0.30))

    def add(moment, blow_sound):
        first = kit.samples(moment)
        sound[first : first + len(blow_sound)] += blow_sound

    wide = key in " \n"
    scale = 1.05 - 0.05 * row + 0.05 * np.sin(7 * column) + 0.02 * rng.standard_normal()
    if wide:
        scale *= 0.66 if key == " " else 0.80
    held = rng.uniform(0.075, 0.105) + (0.02 if wide else 0)
    travel = rng.uniform(0.010, 0.014)
    add(0.0, blow(rng, 0.9 * scale, 0.10 * force, -0.3))
    click = ((3650, 0.7, 0.0035), (5200, 0.7, 0.0025), (7100, 0.3, 0.002))
    add(0.6 * travel, 0.40 * force * kit.knock(rng, 0.03, click, 0.00015, 0.5, (3000, 9000), 0.0015))
    add(travel, blow(rng, scale, (1.35 if wide else 1.0) * force, -0.45 if wide else 0.0))
    add(travel + held, blow(rng, 1.18 * scale, 0.38 * force, 0.25))
    if wide:
        # The wire under a wide key rattles in its clips.
        for delay in (0.004, 0.0105, 0.019):
            add(travel + delay * rng.uniform(0.9, 1.2), blow(rng, 1.5 * scale, 0.22 * force, 0.1))
            add(travel + held + delay, blow(rng, 1.6 * scale, 0.13 * force, 0.1))
    return sound, 1.1 * (column - 0.5)


def rhythm(rng):
    """The moment of each key."""
    moment = 0.06
    previous = None
    for key in TEXT:
        yield key, moment
        column = position(key)[0]
        same_hand = previous is not None and (column < 0.5) == (previous < 0.5)
        pace = (0.148 if same_hand else 0.118) * np.exp(0.20 * rng.standard_normal())
        if key == " ":
            pace += 0.06 * rng.uniform()
        previous = column
        moment += pace


def render():
    rng = kit.generator(SEED)
    strokes = list(rhythm(rng))
    # The text is fixed and the tempo is not: fit the line into the time.
    tempo = (SECONDS - 0.52) / strokes[-1][1]
    track = kit.silence(SECONDS)
    for key, moment in strokes:
        force = np.exp(0.16 * rng.standard_normal()) * (1.15 if key in " \n" else 1.0)
        sound, pan = stroke(rng, key, force)
        kit.place(track, moment * tempo, sound, np.clip(pan, -0.7, 0.7))
    return kit.faded(kit.room(rng, track, 0.30, 0.17, 5000, 0.003), 0.005, 0.25)
