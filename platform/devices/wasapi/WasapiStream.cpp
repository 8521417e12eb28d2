// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiStream.h"

#include "platform/backend/Log.h"
#include "platform/devices/windows/DriverThread.h"

#include <algorithm>

#include <audioclient.h>
#include <mmdeviceapi.h>

namespace Platform {

namespace {

using HundredNs = std::chrono::duration<REFERENCE_TIME, std::ratio<1, 10000000>>;

constexpr DWORD Flags = AUDCLNT_STREAMFLAGS_EVENTCALLBACK | AUDCLNT_STREAMFLAGS_AUTOCONVERTPCM |
                        AUDCLNT_STREAMFLAGS_SRC_DEFAULT_QUALITY;

WAVEFORMATEX formatOf(const WasapiStream::Order& order)
{
    WAVEFORMATEX format = {};
    format.wFormatTag = WAVE_FORMAT_IEEE_FLOAT;
    format.nChannels = static_cast<WORD>(order.channels);
    format.nSamplesPerSec = order.rate;
    format.wBitsPerSample = 8 * sizeof(float);
    format.nBlockAlign = static_cast<WORD>(order.channels * sizeof(float));
    format.nAvgBytesPerSec = order.rate * format.nBlockAlign;
    return format;
}

} // namespace

std::unique_ptr<WasapiStream> WasapiStream::open(const Order& order, HRESULT& error)
{
    std::unique_ptr<WasapiStream> stream(new WasapiStream(order));
    error = stream->activate();
    if (SUCCEEDED(error)) {
        error = stream->initialize();
    }
    if (SUCCEEDED(error) && order.silence.count() > 0) {
        error = stream->fillWithSilence();
    }
    if (SUCCEEDED(error)) {
        error = stream->m_client->Start();
    }
    return SUCCEEDED(error) ? std::move(stream) : nullptr;
}

void WasapiStream::closeElsewhere(std::unique_ptr<WasapiStream> stream)
{
    DriverThread::run(DriverThread::Priority::Usual, [open = stream.release()] { delete open; });
}

WasapiStream::WasapiStream(const Order& order) : m_order(order)
{
}

WasapiStream::~WasapiStream()
{
    if (m_client) {
        m_client->Stop();
    }
}

HRESULT WasapiStream::activate()
{
    ComPointer<IMMDeviceEnumerator> enumerator;
    HRESULT error = CoCreateInstance(__uuidof(MMDeviceEnumerator), nullptr, CLSCTX_ALL,
                                     __uuidof(IMMDeviceEnumerator), enumerator.putVoid());
    ComPointer<IMMDevice> device;
    if (SUCCEEDED(error)) {
        error = enumerator->GetDevice(reinterpret_cast<LPCWSTR>(m_order.endpointId.utf16()),
                                      device.put());
    }
    return SUCCEEDED(error)
               ? device->Activate(__uuidof(IAudioClient), CLSCTX_ALL, nullptr, m_client.putVoid())
               : error;
}

HRESULT WasapiStream::initialize()
{
    const WAVEFORMATEX format = formatOf(m_order);
    HRESULT error = m_client->Initialize(AUDCLNT_SHAREMODE_SHARED, Flags,
                                         HundredNs(m_order.buffer).count(), 0, &format, nullptr);
    if (SUCCEEDED(error)) {
        error = m_client->SetEventHandle(m_event.handle());
    }
    if (SUCCEEDED(error)) {
        error = m_client->GetBufferSize(&m_bufferFrames);
    }
    REFERENCE_TIME latency = 0;
    if (SUCCEEDED(error) && SUCCEEDED(m_client->GetStreamLatency(&latency))) {
        m_latencyFrames = static_cast<unsigned>(latency * m_order.rate /
                                                HundredNs(std::chrono::seconds(1)).count());
    }
    if (FAILED(error)) {
        return error;
    }
    logFormat();
    return m_order.direction == Direction::Playback
               ? m_client->GetService(__uuidof(IAudioRenderClient), m_render.putVoid())
               : m_client->GetService(__uuidof(IAudioCaptureClient), m_capture.putVoid());
}

// For whoever looks for a driver's fault.
void WasapiStream::logFormat()
{
    WAVEFORMATEX* mixed = nullptr;
    if (SUCCEEDED(m_client->GetMixFormat(&mixed))) {
        qCInfo(
            Log::devices,
            "A %s is opened with %u Hz, %u channels and a buffer of %u frames; Windows mixes with "
            "%lu Hz and %d channels",
            m_order.direction == Direction::Playback ? "speaker" : "microphone", m_order.rate,
            m_order.channels, m_bufferFrames, mixed->nSamplesPerSec, int(mixed->nChannels));
        CoTaskMemFree(mixed);
    }
}

HRESULT WasapiStream::fillWithSilence()
{
    const auto wanted = static_cast<unsigned>(m_order.silence.count() * m_order.rate / 1000);
    const unsigned frames = std::min(wanted, m_bufferFrames);
    BYTE* memory = nullptr;
    const HRESULT error = m_render->GetBuffer(frames, &memory);
    return SUCCEEDED(error) ? m_render->ReleaseBuffer(frames, AUDCLNT_BUFFERFLAGS_SILENT) : error;
}

HRESULT WasapiStream::padding(unsigned& frames) const
{
    UINT32 value = 0;
    const HRESULT error = m_client->GetCurrentPadding(&value);
    frames = value;
    return error;
}

HRESULT WasapiStream::write(const float* samples, unsigned frames)
{
    BYTE* memory = nullptr;
    const HRESULT error = m_render->GetBuffer(frames, &memory);
    if (FAILED(error) || frames == 0) {
        return error;
    }
    std::copy_n(samples, std::size_t{frames} * m_order.channels, reinterpret_cast<float*>(memory));
    return m_render->ReleaseBuffer(frames, 0);
}

// After its endpoint or the service is gone, a stream may say for ever that no packet has come.
HRESULT WasapiStream::read(std::vector<float>& samples)
{
    unsigned waiting = 0;
    HRESULT error = padding(waiting);
    UINT32 packet = 0;
    while (SUCCEEDED(error)) {
        error = m_capture->GetNextPacketSize(&packet);
        if (FAILED(error) || packet == 0) {
            break;
        }
        error = readPacket(samples);
    }
    return error;
}

HRESULT WasapiStream::readPacket(std::vector<float>& samples)
{
    BYTE* memory = nullptr;
    UINT32 frames = 0;
    DWORD flags = 0;
    const HRESULT error = m_capture->GetBuffer(&memory, &frames, &flags, nullptr, nullptr);
    if (FAILED(error)) {
        return error;
    }
    const std::size_t count = std::size_t{frames} * m_order.channels;
    if ((flags & AUDCLNT_BUFFERFLAGS_SILENT) != 0) {
        samples.resize(samples.size() + count, 0.0F);
    } else {
        const auto* values = reinterpret_cast<const float*>(memory);
        samples.insert(samples.end(), values, values + count);
    }
    return m_capture->ReleaseBuffer(frames);
}

} // namespace Platform
