// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundCapture.h"

namespace Platform {

class WasapiRecording;

// Records by Windows' audio functions. Each opening has a thread of its own, which is left behind
// if it hangs.
class WasapiCapture final : public SoundCapture
{
public:
    WasapiCapture();
    ~WasapiCapture() override;

    void open(const QString& microphoneId, std::shared_ptr<MicrophoneAnalysis> analysis,
              Events events) override;
    void listenOn(const QString& speakerId) override;
    void close(std::function<void()> closed = {}) override;

private:
    QString m_speakerId;
    std::shared_ptr<WasapiRecording> m_recording; // null while closed
};

} // namespace Platform
