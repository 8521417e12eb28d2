// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/DeviceDialog.h"
#include "tests/support/SoundServerTest.h"

#include <memory>

namespace TestSupport {

// The dialog on a sound server: in English on PulseAudio, in Chinese on PipeWire.
class SoundDialogTest : public SoundServerTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    using Script = DeviceDialog::Script;

    QString language() const;
    // Freezes the server during the action and for some time after it.
    void meterFrozen(const char* fault, const Script& action);

    std::unique_ptr<DeviceDialog> m_dialog;
};

} // namespace TestSupport
