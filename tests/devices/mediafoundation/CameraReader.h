// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windows/ComPointer.h"

#include <QByteArray>
#include <QStringList>
#include <chrono>
#include <memory>

// Must follow windows.h.
#include <mfapi.h>
#include <mfidl.h>
#include <mfreadwrite.h>

namespace TestSupport {

// Reads the first camera of Media Foundation by the system's source reader, as the engine does: not
// waiting for frames on the thread that asks.
class CameraReader
{
public:
    CameraReader();
    ~CameraReader();
    CameraReader(const CameraReader&) = delete;
    CameraReader& operator=(const CameraReader&) = delete;

    static QStringList names(); // "none" for a camera without one

    HRESULT open();
    QStringList modes() const;
    // Waits for a frame; empty if none comes in time, or no more.
    QByteArray read(std::chrono::milliseconds timeout = std::chrono::seconds(5));
    bool isAtEnd() const;

private:
    struct Inbox;
    class Callback;

    std::shared_ptr<Inbox> m_inbox;
    Platform::ComPointer<IMFMediaSource> m_source;
    Platform::ComPointer<IMFSourceReader> m_reader;
};

} // namespace TestSupport
