# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""A two-tone chime in a hall: ding when the button goes down, dong when it is let go.

A plunger strikes a bar that is free at both ends, so its partials stand at 1, 2.76, 5.40 and 8.93 times the
fundamental. Each partial is a pair a fraction of a hertz apart, which makes the tone waver as it dies away.
"""

import kit

SEED = 310
SECONDS = 3.6
BAR = ((1.0, 1.0, 1.05), (2.756, 0.42, 0.42), (5.404, 0.20, 0.16), (8.933, 0.07, 0.06))


def bar(rng, hertz, seconds):
    partials = []
    for ratio, amplitude, decay in BAR:
        beat = rng.uniform(0.5, 1.1)
        partials.append((hertz * ratio, amplitude, decay))
        partials.append((hertz * ratio + beat, 0.35 * amplitude, 0.8 * decay))
    return kit.knock(rng, seconds, partials, 0.00035, 0.25, (1800, 7000), 0.0025)


def plunger(rng):
    """The iron core that flies in its coil and falls back."""
    partials = ((410, 0.5, 0.012), (930, 0.6, 0.008), (1730, 0.5, 0.006), (2950, 0.3, 0.004))
    return kit.knock(rng, 0.12, partials, 0.0008, 0.3, (700, 4500), 0.005)


def render():
    rng = kit.generator(SEED)
    track = kit.silence(SECONDS)
    kit.place(track, 0.035, plunger(rng), -0.1, 0.22)
    kit.place(track, 0.060, bar(rng, 659.26, SECONDS), -0.12, 1.0)
    kit.place(track, 0.735, plunger(rng), 0.1, 0.25)
    kit.place(track, 0.760, bar(rng, 523.25, SECONDS), 0.12, 1.1)
    return kit.faded(kit.room(rng, track, 0.6, 0.16, 4500, 0.008), 0.005, 0.5)
