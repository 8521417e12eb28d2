// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/MediaFoundationCamera.h"

#include "platform/devices/mediafoundation/MediaFoundationFormat.h"
#include "platform/devices/mediafoundation/MediaFoundationSources.h"
#include "platform/devices/mediafoundation/SampleReceiver.h"

#include <algorithm>
#include <mferror.h>

namespace Platform {

namespace {

constexpr auto AllStreams = static_cast<DWORD>(MF_SOURCE_READER_ALL_STREAMS);
constexpr auto VideoStream = static_cast<DWORD>(MF_SOURCE_READER_FIRST_VIDEO_STREAM);
constexpr std::chrono::milliseconds FlushTimeout(500);
constexpr auto FormatFlags = static_cast<DWORD>(MF_SOURCE_READERF_NATIVEMEDIATYPECHANGED) |
                             static_cast<DWORD>(MF_SOURCE_READERF_CURRENTMEDIATYPECHANGED);
constexpr DWORD MaxTypes = CameraModes::MaxOffers; // a driver may have no end

} // namespace

MediaFoundationCamera::MediaFoundationCamera(const MediaFoundation& functions, const QString& link,
                                             std::shared_ptr<SampleBox> box)
    : m_functions(functions), m_link(link), m_box(std::move(box))
{
}

// The reader must have nothing to do any more: if a command of its own lets go of it last, Wine's
// waits for itself. The source is shut down by us, because the reader's end may leave the camera
// on.
MediaFoundationCamera::~MediaFoundationCamera()
{
    if (m_reader && SUCCEEDED(m_reader->Flush(AllStreams))) {
        m_box->awaitFlush(FlushTimeout);
    }
    if (m_source) {
        m_source->Shutdown();
    }
    m_offers.clear();
    m_reader.reset();
    m_source.reset();
    if (m_activate) {
        m_activate->ShutdownObject();
    }
}

HRESULT MediaFoundationCamera::open()
{
    HRESULT error = S_OK;
    m_session = MediaSession::start(m_functions, error);
    if (m_session) {
        error = activate();
    }
    if (SUCCEEDED(error) && !m_box->isStopped()) {
        error = createReader();
    }
    if (SUCCEEDED(error) && m_reader) {
        listOffers();
    }
    return error;
}

HRESULT MediaFoundationCamera::start(const CameraMode& mode)
{
    const auto found = std::find_if(m_offers.begin(), m_offers.end(),
                                    [&mode](const Offer& offer) { return offer.mode == mode; });
    if (found == m_offers.end()) {
        return MF_E_INVALIDMEDIATYPE;
    }
    const HRESULT error = m_reader->SetCurrentMediaType(VideoStream, nullptr, found->type.get());
    if (SUCCEEDED(error)) {
        m_format = MediaFoundationFormat::of(*found->type.get());
    }
    return SUCCEEDED(error) ? request() : error;
}

HRESULT MediaFoundationCamera::take(DWORD flags)
{
    if ((flags & MF_SOURCE_READERF_ERROR) != 0) {
        return E_FAIL;
    }
    if ((flags & MF_SOURCE_READERF_ENDOFSTREAM) != 0) {
        return MF_E_END_OF_STREAM;
    }
    const HRESULT error = (flags & FormatFlags) != 0 ? readFormat() : S_OK;
    return SUCCEEDED(error) ? request() : error;
}

HRESULT MediaFoundationCamera::activate()
{
    HRESULT error = S_OK;
    m_activate = MediaFoundationSources::find(m_functions, m_link, error);
    if (!m_activate) {
        return error;
    }
    return m_activate->ActivateObject(IID_IMFMediaSource, m_source.putVoid());
}

HRESULT MediaFoundationCamera::createReader()
{
    ComPointer<IMFAttributes> wanted;
    HRESULT error = m_functions.createAttributes(wanted.put(), 2);
    if (FAILED(error)) {
        return error;
    }
    ComPointer<IMFSourceReaderCallback> receiver;
    *receiver.put() = new SampleReceiver(m_box);
    wanted->SetUnknown(MF_SOURCE_READER_ASYNC_CALLBACK, receiver.get());
    wanted->SetUINT32(MF_READWRITE_DISABLE_CONVERTERS, TRUE); // FrameConverter does it
    error = m_functions.createSourceReader(m_source.get(), wanted.get(), m_reader.put());
    if (SUCCEEDED(error)) {
        // A camera may have a second stream, for photos or of an infrared sensor.
        m_reader->SetStreamSelection(AllStreams, FALSE);
        error = m_reader->SetStreamSelection(VideoStream, TRUE);
    }
    return error;
}

void MediaFoundationCamera::listOffers()
{
    for (DWORD i = 0; i < MaxTypes; ++i) {
        Offer offer;
        if (FAILED(m_reader->GetNativeMediaType(VideoStream, i, offer.type.put()))) {
            return;
        }
        const MediaFormat format = MediaFoundationFormat::of(*offer.type.get());
        offer.mode = format.mode();
        m_modes.add(format.offer()); // knows what can be shown
        if (format.frame.pixelFormat != PixelFormat::None) {
            m_offers.push_back(std::move(offer));
        }
    }
}

HRESULT MediaFoundationCamera::request()
{
    return m_reader->ReadSample(VideoStream, 0, nullptr, nullptr, nullptr, nullptr);
}

HRESULT MediaFoundationCamera::readFormat()
{
    ComPointer<IMFMediaType> type;
    const HRESULT error = m_reader->GetCurrentMediaType(VideoStream, type.put());
    if (SUCCEEDED(error)) {
        m_format = MediaFoundationFormat::of(*type.get());
    }
    return error;
}

} // namespace Platform
