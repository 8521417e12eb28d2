# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""A herring gull above the sea: two long falling cries, then a laughing triple, a second bird further away, surf.

The voice follows the source-filter view of gull calls. The syrinx gives a harmonic series that starts low, breaks
upwards within some hundredths of a second and then falls; the throat and the opening bill are resonances through which
the series glides. Irregular vibration makes the cry harsh.
"""

import numpy as np

import kit

SEED = 1201
SECONDS = 3.8
HARMONICS = 14


def throat(hertz, opening):
    """Gain at a frequency for a bill opening between 0 and 1."""
    gain = 0.05
    for centre, shift, width, weight in ((1250, 350, 420, 1.0), (2350, 500, 650, 0.9), (3900, 400, 1000, 0.28)):
        place = centre + shift * opening
        gain = gain + weight / (1 + ((hertz - place) / (width / 2)) ** 2)
    return gain


def cry(rng, seconds, start, top, end, harsh):
    moment = kit.times(seconds)
    count = len(moment)
    share = moment / seconds
    # The voice breaks from the low register into the high one, holds and sinks, faster towards the end.
    onset = min(0.045, 0.16 * seconds)
    broken = 1 / (1 + np.exp(-(moment - onset) / 0.006))
    falling = top + (end - top) * (0.35 * share + 0.65 * share**2.6)
    pitch = start + (falling - start) * broken
    pitch = pitch * (1 + 0.006 * kit.slow_noise(rng, count, 14) + 0.004 * kit.slow_noise(rng, count, 90))
    phase = 2 * np.pi * np.cumsum(pitch) / kit.RATE

    opening = np.interp(share, (0, 0.12, 0.45, 0.85, 1), (0.1, 1.0, 0.75, 0.15, 0.0))
    voice = np.zeros(count)
    for number in range(1, HARMONICS + 1):
        shimmer = 1 + 0.12 * kit.slow_noise(rng, count, 40)
        audible = pitch * number < 11000
        voice += audible * shimmer * throat(pitch * number, opening) / number**0.55 * np.sin(number * phase)
    # Every second swing of the membranes comes out weaker: a subharmonic, and the rasp of an angry bird.
    rasp = np.interp(share, (0, 0.08, 0.3, 0.7, 1), (0.9, 0.35, 0.25, 0.5, 0.9)) * harsh
    voice *= 1 + rasp * np.sin(phase / 2 + 0.7) + 0.5 * rasp * kit.slow_noise(rng, count, 160)
    breath = kit.bandpass(1500, 6500, rng.standard_normal(count))
    voice += 0.3 * breath * throat(3200, opening)

    envelope = kit.curve(
        seconds,
        (0, 0), (0.012, 0.35), (onset + 0.02, 1), (0.5 * seconds, 0.85),
        (0.8 * seconds, 0.5), (seconds - 0.02, 0.04), (seconds, 0),
    )
    return voice * envelope * (1 + 0.08 * kit.slow_noise(rng, count, 12))


def surf(rng):
    count = kit.samples(SECONDS)
    swell = np.interp(kit.times(SECONDS), (0, 1.2, 2.3, 3.2, SECONDS), (0.5, 1.0, 0.45, 0.8, 0.4))
    return np.array([
        swell * kit.lowpass(1400, kit.bandpass(250, 5000, rng.standard_normal(count), 1), 1) for _ in range(2)
    ])


def render():
    rng = kit.generator(SEED)
    near = kit.silence(SECONDS)
    far = kit.silence(SECONDS)
    #        moment  length start  top   end  harsh  gain
    cries = (
        (0.08, 0.62, 560, 1085, 730, 0.30, 1.00),
        (0.82, 0.54, 580, 1130, 740, 0.35, 0.95),
        (1.62, 0.30, 620, 1210, 840, 0.50, 0.95),
        (1.97, 0.29, 620, 1190, 820, 0.55, 1.00),
        (2.31, 0.34, 600, 1130, 730, 0.50, 0.90),
    )
    for start, seconds, *shape, gain in cries:
        kit.place(near, start, cry(rng, seconds, *shape), -0.15 + 0.12 * start, gain)
    answers = ((2.62, 0.42, 640, 1260, 900, 0.3, 0.22), (3.1, 0.40, 640, 1230, 880, 0.3, 0.20))
    for start, seconds, *shape, gain in answers:
        kit.place(far, start, kit.lowpass(3500, cry(rng, seconds, *shape), 1), 0.7, gain)
    # Open air: no tail to speak of, only the sea wall and the houses behind it answer.
    echo = kit.silence(SECONDS)
    for delay, gain, pan in ((0.137, 0.10, 0.5), (0.211, 0.07, -0.6), (0.318, 0.05, 0.3)):
        kit.place(echo, delay, kit.lowpass(2200, near.sum(axis=0), 1), pan, gain)
    track = kit.room(rng, near + 1.6 * far + echo, 0.5, 0.10, 3500) + kit.room(rng, far, 0.9, 0.5, 3000)
    return kit.faded(track + 0.16 * surf(rng), 0.15, 0.35)
