// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundCapture.h"

namespace Platform {

class PulseCapture;
class PulseConnection;

// What the GUI thread has of a PulseCapture. The connection outlives it.
class PulseCaptureHandle final : public SoundCapture
{
public:
    explicit PulseCaptureHandle(PulseConnection& connection);
    ~PulseCaptureHandle() override;

    void open(const QString& microphoneId, std::shared_ptr<MicrophoneAnalysis> analysis,
              Events events) override;
    void listenOn(const QString& speakerId) override;
    void close(std::function<void()> closed) override;

private:
    PulseConnection& m_connection;
    std::shared_ptr<PulseCapture> m_capture;
};

} // namespace Platform
