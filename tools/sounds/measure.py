# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Measures of a sound: format, length, loudness and true peak by EBU R 128, where its energy lies, how it ends."""

import json
import pathlib
import re
import subprocess

import numpy as np
from scipy import signal

import kit

SMALL_SPEAKER = (300, 6000)
# Thirds of octaves from 100 Hz up, for comparing the timbre of two sounds.
BANDS = 100 * 2 ** (np.arange(21) / 3)
# A band that lies this far below the whole sound doesn't count.
AUDIBLE_DB = -35


def command(*words):
    return subprocess.run(words, check=True, capture_output=True)


def probe(path):
    """Sample rate, channels, kbit/s and codec as ffprobe reads them."""
    answer = json.loads(command(
        "ffprobe", "-v", "error", "-select_streams", "a:0", "-of", "json",
        "-show_entries", "stream=codec_name,sample_rate,channels,bit_rate", str(path),
    ).stdout)["streams"][0]
    return {
        "codec": answer["codec_name"],
        "rate": int(answer["sample_rate"]),
        "channels": int(answer["channels"]),
        "kbit": int(answer["bit_rate"]) / 1000,
    }


def decoded(path):
    """The samples of a sound file as a stereo track."""
    raw = command("ffmpeg", "-v", "error", "-i", str(path), "-f", "f32le", "-acodec", "pcm_f32le", "-").stdout
    return np.frombuffer(raw, dtype="<f4").reshape(-1, 2).T.astype(np.float64)


def loudness(path):
    """Integrated loudness in LUFS and true peak in dBTP."""
    log = command(
        "ffmpeg", "-nostats", "-hide_banner", "-i", str(path),
        "-filter_complex", "ebur128=peak=true:framelog=verbose", "-f", "null", "-",
    ).stderr.decode()
    summary = log[log.rindex("Summary:"):]
    integrated = float(re.search(r"I:\s+(-?[\d.]+) LUFS", summary).group(1))
    peak = float(re.search(r"Peak:\s+(-?[\d.]+) dBFS", summary).group(1))
    return integrated, peak


def spectrum(track):
    """Frequencies and the power at each, summed over both channels."""
    hertz, power = signal.welch(track, kit.RATE, nperseg=4096, axis=1)
    return hertz, power.sum(axis=0)


def energy_share(track, low, high):
    hertz, power = spectrum(track)
    return power[(hertz >= low) & (hertz < high)].sum() / power.sum()


def edge_level(track):
    """The loudest sample within the first ms and the last five, in dBFS: a click at an end shows here."""
    first, last = track[:, : kit.samples(0.001)], track[:, -kit.samples(0.005) :]
    loudest = max(np.abs(first).max(), np.abs(last).max())
    return 20 * np.log10(max(loudest, 1e-6))


def profile(track):
    """What tells sounds apart: level per third of an octave (dB below the sum), and how level moves in time.

    The second part is the spectrum of the level's motion from 1 to 32 Hz in five bands, as shares.
    """
    hertz, power = spectrum(track)
    timbre = np.array([power[(hertz >= low) & (hertz < low * 2 ** (1 / 3))].sum() for low in BANDS])
    timbre = 10 * np.log10(timbre / power.sum() + 10 ** (AUDIBLE_DB / 10))
    level = np.sqrt(np.sum(track**2, axis=0))
    level = signal.resample_poly(level, 1, 441)
    motion = np.abs(np.fft.rfft(level - level.mean(), 1024)) ** 2
    rates = np.fft.rfftfreq(1024, 0.01)
    edges = (0.5, 2, 4, 8, 16, 32)
    shares = np.array([motion[(rates >= low) & (rates < high)].sum() for low, high in zip(edges, edges[1:])])
    return timbre, shares / shares.sum()


def distance(one, other):
    """How unlike two profiles are: 1 stands for 10 dB of difference in timbre, or for a wholly different motion."""
    timbre = np.sqrt(np.mean((one[0] - other[0]) ** 2)) / 10
    motion = np.abs(one[1] - other[1]).sum() / 2
    return float(timbre + motion)


def measures(path):
    track = decoded(path)
    integrated, peak = loudness(path)
    result = probe(path)
    hertz, power = spectrum(track)
    result.update(
        seconds=track.shape[1] / kit.RATE,
        lufs=integrated,
        true_peak=peak,
        share=energy_share(track, *SMALL_SPEAKER),
        centre=float(np.sum(hertz * power) / power.sum()),
        edge=edge_level(track),
        onset=kit.onset(track) / kit.RATE,
        bytes=pathlib.Path(path).stat().st_size,
    )
    return result


def table(folder, names):
    """The measures of the files in a folder as the lines of a table."""
    lines = [
        "| Sound | Length | Bit rate | Loudness | True peak | 300 Hz to 6 kHz | Centre | Begins | First 1, last 5 ms | Size |",
        "|---|---|---|---|---|---|---|---|---|---|",
    ]
    for name in names:
        values = measures(folder / f"{name}.mp3")
        lines.append(
            f"| {name} | {values['seconds']:.2f} s | {values['kbit']:.0f} kbit/s | {values['lufs']:.1f} LUFS "
            f"| {values['true_peak']:.1f} dBTP | {100 * values['share']:.0f} % | {values['centre']:.0f} Hz "
            f"| {1000 * values['onset']:.0f} ms | {values['edge']:.0f} dBFS | {values['bytes'] / 1000:.1f} kB |"
        )
    return lines
