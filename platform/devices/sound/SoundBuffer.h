// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <mutex>
#include <vector>

namespace Platform {

// Passes a sound from the decoder's thread to the sound thread: interleaved samples, -1 to 1.
class SoundBuffer
{
public:
    struct Format
    {
        unsigned rate = 0;
        unsigned channels = 0;
    };
    // Called on the decoder's thread after each piece and at the end, but not after cancel(). It
    // must not call the buffer, which is locked meanwhile.
    using Advanced = std::function<void(bool hasEnded)>;

    explicit SoundBuffer(Advanced advanced = {});

    // The decoder's side.
    void begin(Format format);
    void append(const float* samples, std::size_t count);
    void end(); // without samples before it there is nothing to play
    bool isCancelled() const;

    // The player's side.
    void cancel();
    Format format() const; // the rate is 0 before begin()
    bool hasEnded() const;
    std::size_t size() const; // samples so far
    int lengthMs() const;
    // Copies up to count samples, beginning at index from. Returns how many were copied.
    std::size_t read(std::size_t from, float* samples, std::size_t count) const;

private:
    mutable std::mutex m_mutex;
    Advanced m_advanced; // null after cancel()
    Format m_format;
    std::vector<float> m_samples;
    bool m_hasEnded = false;
    bool m_isCancelled = false;
};

} // namespace Platform
