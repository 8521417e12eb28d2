# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Thunder from a close stroke: a tearing crack, claps, and a tail that rolls away.

The lightning channel is a crooked line some hundred metres away. Each of its points gives off a pressure pulse in the
shape of an N, and what one hears at a moment are the points whose sound arrives then. Kinks that turn broadside are the
claps. Air and distance take the high notes away first, and hills and clouds scatter the rest.
"""

import numpy as np
from scipy import signal

import kit

SEED = 4407
SECONDS = 3.9
SPEED_OF_SOUND = 343.0
STEP = 0.03


def channel(rng, start, heading, length):
    """A crooked line: steps of STEP metres whose direction wanders on four scales."""
    count = int(length / STEP)
    direction = np.tile(np.array(heading, float), (count, 1))
    for scale, spread in ((140, 0.55), (35, 0.5), (9, 0.4), (2.5, 0.35)):
        pieces = int(length / scale) + 2
        direction += spread * rng.standard_normal((pieces, 3))[(np.arange(count) * STEP / scale).astype(int)]
    direction /= np.sqrt(np.sum(direction**2, axis=1))[:, None]
    return np.array(start) + np.cumsum(direction * STEP, axis=0)


def arrivals(points, ear, strength, delay):
    """The pulse train that reaches the ear, one value for each sample."""
    distance = np.sqrt(np.sum((points - ear) ** 2, axis=1))
    moment = distance / SPEED_OF_SOUND - delay
    index = moment * kit.RATE
    whole = np.floor(index).astype(int)
    part = index - whole
    loud = strength * 100 / distance
    train = np.zeros(kit.samples(SECONDS) + 2)
    inside = (whole >= 0) & (whole < kit.samples(SECONDS))
    np.add.at(train, whole[inside], (loud * (1 - part))[inside])
    np.add.at(train, whole[inside] + 1, (loud * part)[inside])
    return train[:-2]


def pulse(seconds):
    """The N-shaped wave of a short spark, its edges rounded by the air."""
    count = kit.samples(seconds)
    shape = np.concatenate((np.zeros(40), np.linspace(1, -1, count), np.zeros(200)))
    return kit.lowpass(9000, shape, 1)


def rendered_channel(rng):
    stem = channel(rng, (0, 210, 0), (0.05, 0.12, 1.0), 1050)
    cloud = channel(rng, stem[-1], (0.3, 0.9, 0.25), 500)
    strokes = [(stem, 1.0), (cloud, 1.1)]
    for _ in range(9):
        root = stem[rng.randint(len(stem) // 12, len(stem))]
        heading = (rng.uniform(-1, 1), rng.uniform(-0.6, 0.8), rng.uniform(-0.9, 0.1))
        strokes.append((channel(rng, root, heading, rng.uniform(40, 190)), rng.uniform(0.2, 0.55)))
    delay = np.sqrt(np.sum(stem**2, axis=1)).min() / SPEED_OF_SOUND - 0.10
    tracks = []
    for ear in (-0.6, 0.6):
        train = sum(arrivals(points, np.array((ear, 0, 1.6)), power, delay) for points, power in strokes)
        tracks.append(signal.fftconvolve(train, pulse(0.0016))[: kit.samples(SECONDS)])
    return np.array(tracks)


def distant(track):
    """Air absorption that grows with time: the cut-off glides from bright to dull."""
    moment = kit.times(SECONDS)
    stages = ((0.0, 9000), (0.35, 4500), (0.8, 2200), (1.4, 1200), (2.2, 800), (SECONDS, 600))
    result = np.zeros_like(track)
    for number, (when, hertz) in enumerate(stages):
        knots = [stage[0] for stage in stages]
        weight = np.interp(moment, knots, [1.0 if other == number else 0.0 for other in range(len(stages))])
        result += weight * kit.lowpass(hertz, track, 2)
    return result


def crack(rng):
    """The first instant: leaders tear, then the nearest part of the channel arrives at once."""
    track = kit.silence(SECONDS)
    for _ in range(42):
        start = 0.03 + 0.09 * rng.uniform() ** 0.6
        snap = kit.bandpass(900, 9000, rng.standard_normal(kit.samples(0.02))) * np.exp(-kit.times(0.02) / 0.0022)
        kit.place(track, start, snap, rng.uniform(-0.5, 0.5), rng.uniform(0.1, 0.5))
    for start, gain in ((0.112, 1.0), (0.131, 0.75), (0.158, 0.55), (0.205, 0.5), (0.262, 0.32), (0.33, 0.25)):
        for channel_pan in (-0.8, 0.8):
            blast = rng.standard_normal(kit.samples(0.35))
            blast = 1.1 * kit.bandpass(300, 4500, blast, 1) * np.exp(-kit.times(0.35) / 0.045)
            kit.place(track, start, blast, channel_pan, gain)
    return track


def rolling(rng):
    """What hills and clouds send back: noise in surges, low but with enough middle for a small speaker."""
    count = kit.samples(SECONDS)
    moment = kit.times(SECONDS)
    surges = np.zeros(count)
    for start, gain, rise, fall in (
        (0.20, 0.9, 0.03, 0.30), (0.62, 0.75, 0.05, 0.22), (1.02, 1.0, 0.06, 0.30), (1.55, 0.6, 0.08, 0.25),
        (1.95, 0.75, 0.08, 0.35), (2.55, 0.45, 0.10, 0.40), (3.0, 0.25, 0.12, 0.35),
    ):
        after = np.maximum(0, moment - start)
        surges += gain * (1 - np.exp(-after / rise)) * np.exp(-after / fall)
    track = np.zeros((2, count))
    shared = rng.standard_normal(count)
    for side in range(2):
        noise = 0.6 * shared + 0.8 * rng.standard_normal(count)
        flutter = np.exp(0.6 * kit.slow_noise(rng, count, 7) + 0.45 * kit.slow_noise(rng, count, 28))
        low = kit.lowpass(230, noise, 1) * 3.0
        middle = kit.bandpass(220, 700, noise, 1) * 1.7
        track[side] = (low + middle) * surges * flutter
    return track


def render():
    rng = kit.generator(SEED)
    direct = rendered_channel(rng)
    direct /= np.sqrt(np.mean(direct**2))
    rumble = rolling(rng)
    rumble /= np.sqrt(np.mean(rumble**2))
    tear = crack(rng)
    tear /= np.abs(tear).max()
    track = distant(0.7 * direct + 0.9 * rumble) + 8 * tear
    track = kit.room(rng, track, 1.8, 0.22, 1200, 0.02)
    # A small speaker gives nothing below 200 Hz: bring out the part of the roll that it can carry.
    track = kit.peaking(450, 5, 0.7, kit.highpass(60, track))
    return kit.faded(kit.soften(track, 0.12), 0.02, 0.9)
