# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Building blocks of the synthesised sounds: noise, struck bodies, envelopes, rooms, placing, levels.

Everything is computed in double precision from seeds, without threads, so that a second run gives the same samples.
Mono signals are one-dimensional arrays, stereo signals have the shape (2, samples).
"""

import numpy as np
from scipy import ndimage, signal

RATE = 44100
# Of a sound's peak: below, before its beginning, it is silence to the ear.
ONSET_SHARE = 0.01


def samples(seconds):
    return int(round(seconds * RATE))


def times(seconds):
    return np.arange(samples(seconds)) / RATE


def generator(seed):
    # RandomState and not default_rng: numpy promises that its streams never change.
    return np.random.RandomState(seed)


def filtered(kind, order, hertz, sound):
    return signal.sosfilt(signal.butter(order, hertz, kind, fs=RATE, output="sos"), sound)


def lowpass(hertz, sound, order=2):
    return filtered("lowpass", order, hertz, sound)


def highpass(hertz, sound, order=2):
    return filtered("highpass", order, hertz, sound)


def bandpass(low, high, sound, order=2):
    return filtered("bandpass", order, (low, high), sound)


def peaking(hertz, decibels, quality, sound):
    """One band of a parametric equaliser."""
    amplitude = 10 ** (decibels / 40)
    omega = 2 * np.pi * hertz / RATE
    alpha = np.sin(omega) / (2 * quality)
    over = [1 + alpha * amplitude, -2 * np.cos(omega), 1 - alpha * amplitude]
    under = [1 + alpha / amplitude, -2 * np.cos(omega), 1 - alpha / amplitude]
    return signal.lfilter(np.array(over) / under[0], np.array(under) / under[0], sound)


def slow_noise(rng, count, hertz):
    """Noise that wanders at most as fast as the given frequency, with a standard deviation of one."""
    knots = max(4, int(count / RATE * hertz * 2) + 4)
    places = np.linspace(0, knots - 1, count)
    wander = ndimage.map_coordinates(rng.standard_normal(knots), [places], order=3, mode="nearest")
    return wander / (np.std(wander) + 1e-12)


def curve(seconds, *points):
    """A smooth envelope through (time, value) points."""
    moments, values = zip(*points)
    line = np.interp(times(seconds), moments, values)
    return ndimage.gaussian_filter1d(line, 0.003 * RATE, mode="nearest")


def body(rng, seconds, partials):
    """A struck body: decaying sines, given as (frequency, amplitude, decay time to 1/e) each."""
    moment = times(seconds)
    sound = np.zeros_like(moment)
    for hertz, amplitude, decay in partials:
        phase = rng.uniform(0, 2 * np.pi)
        sound += amplitude * np.exp(-moment / decay) * np.sin(2 * np.pi * hertz * moment + phase)
    return sound


def knock(rng, seconds, partials, contact, noise=0.0, band=(1000, 6000), noise_decay=0.004):
    """A blow on a body: the force lasts for the contact time, and the surfaces scrape for noise_decay."""
    force = np.hanning(max(3, samples(contact)))
    sound = signal.fftconvolve(body(rng, seconds, partials), force / force.sum())[: samples(seconds)]
    if noise:
        hiss = bandpass(*band, rng.standard_normal(samples(seconds)))
        sound += noise * hiss * np.exp(-times(seconds) / noise_decay)
    rise = samples(0.0003)
    sound[:rise] *= np.linspace(0, 1, rise)
    return sound


def place(track, start, sound, pan=0.0, gain=1.0):
    """Adds a mono sound to a stereo track. pan goes from -1 (left) to 1 (right) at constant power."""
    first = samples(start)
    last = min(track.shape[1], first + len(sound))
    angle = (pan + 1) * np.pi / 4
    for channel, share in enumerate((np.cos(angle), np.sin(angle))):
        track[channel, first:last] += gain * share * sound[: last - first]


def silence(seconds):
    return np.zeros((2, samples(seconds)))


def room(rng, track, decay, wet, damping=5000, predelay=0.004, reflections=6):
    """A room: a few early reflections and a diffuse tail, both different at the two ears."""
    result = track.copy()
    length = samples(decay)
    moment = times(decay)
    for channel in range(2):
        impulse = lowpass(damping, rng.standard_normal(length), 1) * 10 ** (-3 * moment / decay)
        impulse *= 1 - np.exp(-moment / 0.006)
        impulse /= np.sqrt(np.sum(impulse**2))
        early = np.zeros(samples(0.03))
        for _ in range(reflections):
            early[rng.randint(samples(0.002), len(early))] += rng.uniform(0.15, 0.5) * rng.choice((-1, 1))
        impulse[: len(early)] += 0.6 * lowpass(damping, early, 1)[:length]
        sent = 0.7 * track[channel] + 0.3 * track[1 - channel]
        heard = signal.fftconvolve(sent, impulse)
        offset = samples(predelay)
        result[channel, offset:] += wet * heard[: track.shape[1] - offset]
    return result


def narrowed(track, width):
    """Moves both channels towards their middle, so that a device with one speaker loses little."""
    middle = track.mean(axis=0)
    return middle + width * (track - middle)


def soften(track, amount):
    """Lowers loud stretches by a part of their level, as an engineer's compressor does. 0 leaves the track alone."""
    power = ndimage.gaussian_filter1d(np.sum(track**2, axis=0), 0.03 * RATE)
    level = np.sqrt(power) / np.sqrt(power.max())
    return track * (level + 0.01) ** -amount


def limit(track, ceiling):
    """Keeps true peaks below the ceiling: the gain dips shortly around each one and never jumps."""
    reach = samples(0.002)
    fine = np.abs(signal.resample_poly(track, 4, 1, axis=1))
    peaks = fine.max(axis=0).reshape(-1, 4).max(axis=1)
    gain = np.minimum(1, ceiling / np.maximum(peaks, 1e-9))
    gain = ndimage.minimum_filter1d(gain, 2 * reach + 1)
    window = np.hanning(2 * reach + 1)
    return track * ndimage.convolve1d(gain, window / window.sum(), mode="nearest")


def faded(track, fade_in, fade_out):
    """Begins and ends in silence: raised-cosine ramps at both ends."""
    result = track.copy()
    for count, ramp in ((samples(fade_in), result), (samples(fade_out), result[:, ::-1])):
        ramp[:, :count] *= (1 - np.cos(np.pi * np.arange(count) / count)) / 2
    return result


def onset(track):
    """The first sample that isn't silence."""
    level = np.abs(track).max(axis=0)
    return int(np.argmax(level > ONSET_SHARE * level.max()))


def trimmed(track, lead):
    """Begins so many seconds before its first sound, with a ramp too short to be heard."""
    return faded(track[:, max(0, onset(track) - samples(lead)) :], lead, 0)
