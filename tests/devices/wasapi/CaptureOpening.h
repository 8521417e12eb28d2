// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <atomic>
#include <memory>

namespace Platform {
class SoundCapture;
}

namespace TestSupport {

// One opening of a microphone, with what came of it. It may end before the capture.
class CaptureOpening
{
public:
    struct Outcome
    {
        std::atomic<double> level = 0.0;
        std::atomic_bool isHeard = false;
        std::atomic_bool delivers = false;
        std::atomic_int failures = 0;
    };

    CaptureOpening(Platform::SoundCapture& capture, const QString& microphoneId);

    std::shared_ptr<Outcome> outcome = std::make_shared<Outcome>();
};

} // namespace TestSupport
