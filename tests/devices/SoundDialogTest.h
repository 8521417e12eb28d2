// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/DeviceDialog.h"
#include "tests/support/SoundServer.h"

#include <QObject>
#include <memory>

namespace TestSupport {

// Each test case runs with both kinds of sound server, on a new one each time: in English on
// PulseAudio, in Chinese on PipeWire.
class SoundDialogTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

protected:
    using Script = DeviceDialog::Script;

    static QString id(const char* name) { return QString::fromLatin1(name); }
    QString language() const;
    // Freezes the server during the action and for some time after it.
    void meterFrozen(const char* fault, const Script& action);

    std::unique_ptr<SoundServer> m_server;
    std::unique_ptr<DeviceDialog> m_dialog;
};

} // namespace TestSupport
