// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <mutex>
#include <vector>

namespace Platform {

// A sound on its way from the decoder's thread to the sound thread: interleaved samples, -1 to 1.
class SoundBuffer
{
public:
    struct Format
    {
        unsigned rate = 0;
        unsigned channels = 0;
    };
    // Called on the decoder's thread for every piece and at the end, which it is told; it may not
    // ask the buffer anything, and isn't called after cancel().
    using Advanced = std::function<void(bool hasEnded)>;

    explicit SoundBuffer(Advanced advanced = {});

    // The decoder's side.
    void begin(Format format);
    void append(const float* samples, std::size_t count);
    void end(); // nothing more comes; without a sample before it, there is nothing to play
    bool isCancelled() const;

    // The player's side.
    void cancel();
    Format format() const; // of rate 0 until it has begun
    bool hasEnded() const;
    std::size_t size() const; // samples so far
    int lengthMs() const;
    // Copies at most count samples from the given one on; returns how many there were.
    std::size_t read(std::size_t from, float* samples, std::size_t count) const;

private:
    mutable std::mutex m_mutex;
    Advanced m_advanced; // null once cancelled
    Format m_format;
    std::vector<float> m_samples;
    bool m_hasEnded = false;
    bool m_isCancelled = false;
};

} // namespace Platform
