// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/CaptureOpening.h"

#include "platform/devices/sound/MicrophoneAnalysis.h"
#include "platform/devices/sound/SoundCapture.h"

using Platform::SoundCapture;

namespace TestSupport {

CaptureOpening::CaptureOpening(SoundCapture& capture, const QString& microphoneId)
{
    SoundCapture::Events events;
    events.metered.levelMeasured = [outcome = outcome](double level) { outcome->level = level; };
    events.metered.soundHeard = [outcome = outcome] { outcome->isHeard = true; };
    events.metered.deliveryChanged = [outcome = outcome](bool delivers) {
        outcome->delivers = delivers;
    };
    events.failed = [outcome = outcome](Platform::DeviceState) { ++outcome->failures; };
    capture.open(microphoneId, std::make_shared<Platform::MicrophoneAnalysis>(SoundCapture::Rate),
                 events);
}

} // namespace TestSupport
