# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Three pictures with a motor-driven single-lens reflex camera.

Each is a chain of blows in a small metal and plastic body: the mirror flies up and bounces, the first curtain opens,
the second closes, the mirror falls back, and then the motor winds and cocks with the whine of its gears.
"""

import numpy as np

import kit

SEED = 8802
SECONDS = 3.0


def scaled(rng, partials, spread=0.02):
    return [(hertz * (1 + spread * rng.standard_normal()), gain, decay) for hertz, gain, decay in partials]


def mirror(rng, rising):
    pitch = 1.12 if rising else 1.0
    partials = [
        (pitch * hertz, gain, decay)
        for hertz, gain, decay in (
            (330, 1.0, 0.020), (610, 0.9, 0.015), (1040, 0.8, 0.011), (1720, 0.55, 0.008), (2650, 0.3, 0.006),
        )
    ]
    return kit.knock(rng, 0.14, scaled(rng, partials), 0.0007, 0.9, (700, 5500), 0.009)


def curtain(rng):
    partials = ((1450, 0.4, 0.007), (2480, 0.7, 0.006), (3720, 0.8, 0.005), (5250, 0.5, 0.004))
    blades = kit.bandpass(2200, 8000, rng.standard_normal(kit.samples(0.012))) * np.hanning(kit.samples(0.012)) * 0.35
    stop = kit.knock(rng, 0.08, scaled(rng, partials), 0.0002, 0.9, (2000, 8000), 0.004)
    result = np.zeros(kit.samples(0.1))
    result[: len(blades)] += blades
    result[kit.samples(0.008) : kit.samples(0.008) + len(stop)] += stop
    return result


def motor(rng, seconds):
    moment = kit.times(seconds)
    count = len(moment)
    speed = np.interp(moment, (0, 0.05, 0.12, seconds - 0.05, seconds), (70, 205, 250, 262, 120))
    speed = speed * (1 + 0.008 * kit.slow_noise(rng, count, 25))
    turn = 2 * np.pi * np.cumsum(speed) / kit.RATE
    sound = np.zeros(count)
    # Commutator and the two meshes of the reduction gear.
    for order, gain in ((1, 0.35), (2, 0.6), (3, 0.9), (4, 0.5), (6, 0.55), (9, 0.6), (11, 0.8), (12, 0.4), (18, 0.22)):
        sound += gain * (1 + 0.25 * kit.slow_noise(rng, count, 60)) * np.sin(order * turn + rng.uniform(0, 6.28))
    sound *= 1 + 0.35 * np.sin(turn / 5) + 0.2 * kit.slow_noise(rng, count, 90)
    grind = kit.bandpass(900, 6000, rng.standard_normal(count)) * (0.5 + 0.5 * np.sin(turn / 5 + 1)) ** 2
    envelope = kit.curve(
        seconds, (0, 0), (0.015, 0.8), (0.1, 1), (seconds - 0.04, 0.9), (seconds - 0.005, 0), (seconds, 0),
    )
    return (0.28 * sound + 0.5 * grind) * envelope


def picture(rng, track, start, exposure, winding):
    moment = start
    release = kit.knock(rng, 0.05, ((2900, 0.5, 0.004), (4600, 0.5, 0.003)), 0.0002, 0.4, (2500, 8000), 0.002)
    kit.place(track, moment, release, 0.2, 0.25)
    moment += 0.022
    kit.place(track, moment, mirror(rng, True), -0.05, 0.85)
    kit.place(track, moment + 0.011, mirror(rng, True), -0.05, 0.22)
    moment += 0.036
    kit.place(track, moment, curtain(rng), 0.1, 0.8)
    moment += exposure
    kit.place(track, moment, curtain(rng), -0.1, 0.9)
    moment += 0.018
    kit.place(track, moment, mirror(rng, False), 0.0, 1.0)
    kit.place(track, moment + 0.014, mirror(rng, False), 0.0, 0.28)
    kit.place(track, moment + 0.026, mirror(rng, False), 0.0, 0.10)
    moment += 0.03
    kit.place(track, moment, motor(rng, winding), 0.05, 0.34)
    pawl = ((780, 0.6, 0.009), (1900, 0.5, 0.006), (3300, 0.4, 0.004))
    stop = kit.knock(rng, 0.06, pawl, 0.0004, 0.4, (1200, 6000), 0.004)
    kit.place(track, moment + winding - 0.012, stop, 0.05, 0.3)


def render():
    rng = kit.generator(SEED)
    track = kit.silence(SECONDS)
    picture(rng, track, 0.08, 0.075, 0.30)
    picture(rng, track, 1.02, 0.072, 0.29)
    picture(rng, track, 1.80, 0.070, 0.31)
    return kit.faded(kit.room(rng, track, 0.35, 0.16, 6000, 0.003), 0.005, 0.3)
