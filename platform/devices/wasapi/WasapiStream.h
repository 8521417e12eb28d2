// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/wasapi/WakeEvent.h"
#include "platform/devices/windows/ComPointer.h"

#include <QString>
#include <chrono>
#include <memory>
#include <vector>

struct IAudioCaptureClient;
struct IAudioClient;
struct IAudioRenderClient;

namespace Platform {

// A running stream of one endpoint, in shared mode: float samples, which Windows converts. Opening
// and destroying it may hang, so neither is done on a thread that anybody waits for. All else
// returns soon, on one thread with COM.
class WasapiStream
{
public:
    enum class Direction { Playback, Recording };

    struct Order
    {
        Direction direction = Direction::Playback;
        QString endpointId;
        unsigned rate = 0;
        unsigned channels = 0;
        std::chrono::milliseconds buffer{0};  // Windows may make it longer
        std::chrono::milliseconds silence{0}; // what a speaker plays first, within the buffer
    };

    // Opens and starts it: a speaker plays silence then. Null with the error if that fails.
    static std::unique_ptr<WasapiStream> open(const Order& order, HRESULT& error);
    // Closes it on a thread of its own. Without one it stays open: closing it here might hang.
    static void closeElsewhere(std::unique_ptr<WasapiStream> stream);
    ~WasapiStream();
    WasapiStream(const WasapiStream&) = delete;
    WasapiStream& operator=(const WasapiStream&) = delete;

    HANDLE event() const { return m_event.handle(); } // once a period, about 10 ms
    unsigned bufferFrames() const { return m_bufferFrames; }
    unsigned latencyFrames() const { return m_latencyFrames; } // beyond the buffer

    // Frames in the buffer. It is also the only call that tells that the endpoint is gone.
    HRESULT padding(unsigned& frames) const;
    // Playback: at most what is free in the buffer.
    HRESULT write(const float* samples, unsigned frames);
    // Recording: appends all that has come.
    HRESULT read(std::vector<float>& samples);

private:
    explicit WasapiStream(const Order& order);

    HRESULT initialize();
    void logFormat();
    HRESULT fillWithSilence();
    HRESULT activate();
    HRESULT readPacket(std::vector<float>& samples);

    Order m_order;
    WakeEvent m_event;
    unsigned m_bufferFrames = 0;
    unsigned m_latencyFrames = 0;
    ComPointer<IAudioClient> m_client;
    ComPointer<IAudioRenderClient> m_render;
    ComPointer<IAudioCaptureClient> m_capture;
};

} // namespace Platform
