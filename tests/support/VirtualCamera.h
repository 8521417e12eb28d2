// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/CameraPattern.h"
#include "tests/support/VirtualDevice.h"

#include <memory>
#include <pipewire/pipewire.h>
#include <spa/pod/builder.h>
#include <vector>

namespace TestSupport {

// A made-up camera of a PipeWire server. Reads commands from the standard input, one a line:
//   stall | resume | frozen | live | black | color RRGGBB | size WIDTHxHEIGHT | error NUMBER | quit
// It also quits at the end of the input.
class VirtualCamera
{
public:
    struct Options
    {
        QString name;
        QString description;
        QString role = QStringLiteral("Camera");
        QString busPath;      // if there is one, the camera belongs to a device that has it
        QString capabilities; // of that device
        int rate = 30;
        // If there are any, the reader has the choice between them.
        struct Mode
        {
            CameraPattern::PixelFormat pixelFormat;
            QSize size;
            int rate;
        };
        std::vector<Mode> modes;
        uint32_t transform = 0; // a SPA_META_TRANSFORMATION value
        bool isStalled = false;
        bool isRefusing = false;     // wants a kind of memory that no reader has
        bool isUnreadable = false;   // offers only a format that no reader takes
        bool isForGraphics = false;  // offers only an order of pixels that graphics cards know
        bool isBroken = false;       // sends no frames, but anything
        bool isDriverMemory = false; // DMA buffers, as of a kernel driver
        bool isLogged = false;       // prints the time of every frame
    };

    VirtualCamera(const Options& options, const CameraPattern& pattern);
    ~VirtualCamera();
    VirtualCamera(const VirtualCamera&) = delete;
    VirtualCamera& operator=(const VirtualCamera&) = delete;

    int run(); // the exit code

private:
    bool connect();
    const spa_pod* format(spa_pod_builder& builder, uint32_t parameter) const;
    void onInput();
    void obey(const QByteArray& line);
    void onStateChanged(pw_stream_state state);
    void onFormatChanged(const spa_pod* format);
    void adopt(const spa_pod* format);
    void onProcess();
    void resize(const QSize& size);

    static const pw_stream_events Events;

    Options m_options;
    CameraPattern m_pattern;
    pw_main_loop* m_mainLoop = nullptr;
    std::unique_ptr<VirtualDevice> m_device;
    pw_stream* m_stream = nullptr;
    spa_source* m_timer = nullptr;
    QByteArray m_input;
    int m_number = 0;
    bool m_isFrozen = false;
    int m_exitCode = 0;
};

} // namespace TestSupport
