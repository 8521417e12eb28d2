// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/MicrophoneFeed.h"
#include "tests/support/SoundServer.h"

namespace TestSupport {

// One of PulseAudio, which reads from a FIFO.
class FifoMicrophone final : public MicrophoneFeed
{
public:
    FifoMicrophone(SoundServer& server, const QString& name);
    ~FifoMicrophone() override;
    FifoMicrophone(const FifoMicrophone&) = delete;
    FifoMicrophone& operator=(const FifoMicrophone&) = delete;

    bool isPlugged() const override { return m_fifo >= 0; }
    void hear(const float* piece) override;

private:
    QTemporaryDir m_folder;
    int m_fifo;
};

} // namespace TestSupport
