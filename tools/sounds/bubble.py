# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Air bubbling up through water: large bubbles one by one, then a chain, then a fizz of small ones.

A bubble rings at the frequency that its radius sets, dies away by radiation and heat loss, and rises in pitch as it
nears the surface, because less water has to move with it.
"""

import numpy as np

import kit

SEED = 5150
SECONDS = 3.5
MINNAERT = 3.26


def bubble(rng, hertz, rise, hold):
    """rise is the ratio of the last pitch to the first, hold stretches the natural decay."""
    radius = MINNAERT / hertz
    damping = (0.13 / radius + 0.0072 * radius**-1.5) / hold
    seconds = min(0.32, 6 / damping)
    moment = kit.times(seconds)
    share = np.clip(moment * damping / 3.2, 0, 1)
    pitch = hertz * rise ** (share**1.05)
    phase = 2 * np.pi * np.cumsum(pitch) / kit.RATE
    attack = 1 - np.exp(-moment / (2.6 / hertz))
    ring = attack * np.exp(-damping * moment) * (np.sin(phase) + 0.08 * np.sin(2 * phase + 0.5))
    # The skin closes behind the air: a short wet tick.
    tick = kit.bandpass(hertz, min(12 * hertz, 9000), rng.standard_normal(len(moment)), 1)
    return (ring + 0.10 * tick * np.exp(-moment * hertz / 2.0)) * np.clip((seconds - moment) / 0.01, 0, 1)


def render():
    rng = kit.generator(SEED)
    track = kit.silence(SECONDS)
    #        moment  hertz rise  hold
    large = (
        (0.06, 400, 2.0, 1.35), (0.29, 360, 2.2, 1.40), (0.46, 520, 2.0, 1.25), (0.58, 440, 2.2, 1.35),
        (0.92, 340, 2.3, 1.45), (1.06, 560, 1.9, 1.25), (1.16, 450, 2.2, 1.35), (1.31, 640, 1.9, 1.20),
        (1.40, 520, 2.2, 1.30),
        (1.78, 370, 2.4, 1.45), (1.90, 500, 2.1, 1.30), (2.00, 660, 2.0, 1.20), (2.08, 560, 2.2, 1.30),
        (2.17, 760, 1.9, 1.20), (2.26, 690, 2.1, 1.25), (2.36, 900, 1.9, 1.20),
        (2.62, 420, 2.5, 1.45), (2.84, 600, 2.2, 1.30), (2.96, 820, 2.0, 1.20),
    )
    for start, hertz, rise, hold in large:
        gain = (400 / hertz) ** 0.35 * rng.uniform(0.8, 1.0)
        kit.place(track, start, bubble(rng, hertz, rise, hold), rng.uniform(-0.5, 0.5), gain)
        # A large bubble sheds small ones.
        for _ in range(rng.randint(0, 4)):
            kit.place(
                track, start + rng.uniform(0.01, 0.11), bubble(rng, rng.uniform(1000, 2300), 1.5, 1.5),
                rng.uniform(-0.8, 0.8), rng.uniform(0.06, 0.22),
            )
    for _ in range(60):
        start = 0.3 + 2.9 * rng.uniform() ** 0.7
        hertz = np.exp(rng.uniform(np.log(900), np.log(3800)))
        small = bubble(rng, hertz, rng.uniform(1.05, 1.5), 1.2)
        kit.place(track, start, small, rng.uniform(-0.9, 0.9), rng.uniform(0.02, 0.09))
    return kit.faded(kit.room(rng, track, 0.28, 0.20, 2600, 0.002), 0.005, 0.25)
