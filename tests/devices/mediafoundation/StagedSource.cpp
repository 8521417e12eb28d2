// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/mediafoundation/StagedSource.h"

#include "tests/devices/mediafoundation/StagedStream.h"
#include "tests/devices/windowscameras/CameraStage.h"
#include "tests/devices/windowscameras/StagedFrame.h"

// Must follow windows.h.
#include <mferror.h>

using Platform::ComPointer;

namespace TestSupport {

namespace {

using Ticks = std::chrono::duration<LONGLONG, std::ratio<1, 10'000'000>>; // Media Foundation's unit

constexpr std::chrono::milliseconds ReaderLinger(500); // for commands on their way

UINT64 pair(int first, int second)
{
    return static_cast<UINT64>(first) << 32 | static_cast<UINT32>(second);
}

void setUnlessZero(IMFMediaType& type, const GUID& key, int value)
{
    if (value != 0) {
        type.SetUINT32(key, static_cast<UINT32>(value));
    }
}

ComPointer<IMFMediaType> typeOf(const StagedMode& mode)
{
    ComPointer<IMFMediaType> type;
    MFCreateMediaType(type.put());
    type->SetGUID(MF_MT_MAJOR_TYPE, MFMediaType_Video);
    type->SetGUID(MF_MT_SUBTYPE, subtypeOf(mode.format));
    type->SetUINT64(MF_MT_FRAME_SIZE, pair(mode.size.width(), mode.size.height()));
    type->SetUINT64(MF_MT_FRAME_RATE, pair(mode.rateNumerator, mode.rateDenominator));
    type->SetUINT32(MF_MT_INTERLACE_MODE, MFVideoInterlace_Progressive);
    type->SetUINT32(MF_MT_ALL_SAMPLES_INDEPENDENT, TRUE);
    setUnlessZero(*type.get(), MF_MT_DEFAULT_STRIDE, mode.stride);
    setUnlessZero(*type.get(), MF_MT_VIDEO_NOMINAL_RANGE, mode.nominalRange);
    setUnlessZero(*type.get(), MF_MT_YUV_MATRIX, mode.yuvMatrix);
    return type;
}

Ticks periodOf(const StagedMode& mode)
{
    return Ticks(std::chrono::seconds(mode.rateDenominator)) / qMax(mode.rateNumerator, 1);
}

} // namespace

StagedSource::StagedSource(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera)
    : EventGenerator(stage),
      m_stage(std::move(stage)),
      m_camera(std::move(camera)),
      m_modes(m_camera->modes),
      m_frames(m_stage, m_camera)
{
    describe();
    *m_stream.put() = new StagedStream(m_stage, *this, *m_description.get());
    const std::scoped_lock lock(m_stage->mutex);
    ++m_stage->opened[m_camera->link];
}

StagedSource::~StagedSource()
{
    m_frames.stop();
    countAsClosed();
}

HRESULT StagedSource::BeginGetEvent(IMFAsyncCallback* callback, IUnknown* state)
{
    {
        const std::scoped_lock lock(m_stage->mutex);
        if (!m_reader && !m_isShutDown) {
            callback->AddRef();
            *m_reader.put() = callback;
        }
    }
    return EventGenerator::BeginGetEvent(callback, state);
}

HRESULT StagedSource::GetCharacteristics(DWORD* characteristics)
{
    *characteristics = MFMEDIASOURCE_IS_LIVE;
    return S_OK;
}

HRESULT StagedSource::CreatePresentationDescriptor(IMFPresentationDescriptor** descriptor)
{
    const std::scoped_lock lock(m_stage->mutex);
    *descriptor = nullptr;
    return FAILED(m_camera->readingError) ? m_camera->readingError
                                          : m_presentation->Clone(descriptor);
}

HRESULT StagedSource::Start(IMFPresentationDescriptor* /*descriptor*/, const GUID* /*timeFormat*/,
                            const PROPVARIANT* position)
{
    m_stage->pass(m_camera->hangsInStart);
    const std::scoped_lock lock(m_stage->mutex);
    if (m_isShutDown) {
        return MF_E_SHUTDOWN;
    }
    const bool isNew = !m_frames.isRunning();
    tellOf(isNew ? MENewStream : MEUpdatedStream, m_stream.get());
    tell(MESourceStarted, position);
    m_stream->tell(MEStreamStarted, position);
    if (isNew) {
        startFrames(currentMode());
    }
    return S_OK;
}

HRESULT StagedSource::Stop()
{
    m_frames.stop();
    tell(MESourceStopped);
    m_stream->tell(MEStreamStopped);
    return S_OK;
}

HRESULT StagedSource::Shutdown()
{
    m_stage->pass(m_camera->hangsInShutdown);
    m_frames.stop();
    countAsClosed();
    releaseReaderLater();
    closeEvents();
    m_stream->closeEvents();
    return S_OK;
}

void StagedSource::describe()
{
    std::vector<IMFMediaType*> types;
    for (const StagedMode& mode : m_modes) {
        m_types.push_back(typeOf(mode));
        types.push_back(m_types.back().get());
    }
    MFCreateStreamDescriptor(0, static_cast<DWORD>(types.size()), types.data(),
                             m_description.put());
    ComPointer<IMFMediaTypeHandler> handler;
    m_description->GetMediaTypeHandler(handler.put());
    handler->SetCurrentMediaType(types.front());
    IMFStreamDescriptor* description = m_description.get();
    MFCreatePresentationDescriptor(1, &description, m_presentation.put());
    m_presentation->SelectStream(0);
}

StagedMode StagedSource::currentMode() const
{
    ComPointer<IMFMediaTypeHandler> handler;
    m_description->GetMediaTypeHandler(handler.put());
    ComPointer<IMFMediaType> current;
    handler->GetCurrentMediaType(current.put());
    for (std::size_t i = 0; i < m_types.size(); ++i) {
        DWORD parts = 0;
        if (m_types[i]->IsEqual(current.get(), &parts) == S_OK) {
            return m_modes[i];
        }
    }
    return m_modes.front();
}

void StagedSource::startFrames(const StagedMode& mode)
{
    const auto deliver = [this, period = periodOf(mode)](const QByteArray& frame, int number) {
        m_stream->deliver(frame, period.count() * number, period.count());
    };
    m_frames.start(mode, deliver, [this] {
        m_stream->tell(MEEndOfStream);
        tell(MEEndOfPresentation);
    });
}

// Wine's source reader waits for itself, and then all others for it, if one of its own commands is
// the last to let go of it. So it is held until these are done.
void StagedSource::releaseReaderLater()
{
    std::thread([stage = m_stage, reader = std::move(m_reader)]() mutable {
        {
            std::unique_lock lock(stage->mutex);
            stage->goesOn.wait(lock, [&stage] { return stage->hanging == 0; });
        }
        std::this_thread::sleep_for(ReaderLinger);
        reader.reset();
    }).detach();
}

void StagedSource::countAsClosed()
{
    const std::scoped_lock lock(m_stage->mutex);
    if (!m_isShutDown) {
        m_isShutDown = true;
        --m_stage->opened[m_camera->link];
    }
}

} // namespace TestSupport
