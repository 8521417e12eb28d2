// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Platform {

// Stops acoustic feedback if the microphone hears the speaker. No sample is louder than Ceiling. If
// the sound stays loud, as only feedback does, it is turned down for a while, which breaks the
// loop. If the feedback returns, the next while is twice as long.
class FeedbackLimiter
{
public:
    static constexpr float Ceiling = 0.5F;    // -6 dBFS
    static constexpr float BuildUpRms = 0.2F; // -14 dBFS
    static constexpr double BuildUpSeconds = 0.3;
    static constexpr float DuckedGain = 0.01F; // -40 dB
    static constexpr double FirstHoldSeconds = 0.5;
    static constexpr double LastHoldSeconds = 8.0;
    static constexpr double ForgetSeconds = 10.0; // without feedback; then the first hold applies

    explicit FeedbackLimiter(unsigned rate);

    float pass(float sample);
    bool isDucking() const { return m_holdLeft > 0.0; }

private:
    double m_second; // samples per second
    float m_peakRelease;
    float m_powerShare;
    float m_recoveryStep;
    float m_peak = 0.0F;
    float m_power = 0.0F;
    float m_gain = 1.0F;
    double m_hold = FirstHoldSeconds; // seconds
    double m_holdLeft = 0.0;          // samples
    double m_calm = 0.0;              // samples
};

} // namespace Platform
