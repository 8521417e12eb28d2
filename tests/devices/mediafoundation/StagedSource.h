// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/mediafoundation/EventGenerator.h"
#include "tests/devices/windowscameras/FrameThread.h"

#include <memory>
#include <thread>
#include <vector>

namespace TestSupport {

class StagedStream;

// An opened camera. A thread of its own sends the frames.
class StagedSource final : public EventGenerator<IMFMediaSource>
{
public:
    StagedSource(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera);

    HRESULT STDMETHODCALLTYPE BeginGetEvent(IMFAsyncCallback* callback, IUnknown* state) override;
    HRESULT STDMETHODCALLTYPE GetCharacteristics(DWORD* characteristics) override;
    HRESULT STDMETHODCALLTYPE
    CreatePresentationDescriptor(IMFPresentationDescriptor** descriptor) override;
    HRESULT STDMETHODCALLTYPE Start(IMFPresentationDescriptor* descriptor, const GUID* timeFormat,
                                    const PROPVARIANT* position) override;
    HRESULT STDMETHODCALLTYPE Stop() override;
    HRESULT STDMETHODCALLTYPE Pause() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Shutdown() override;

private:
    ~StagedSource() override;

    void describe();
    StagedMode currentMode() const;
    void startFrames(const StagedMode& mode);
    void releaseReaderLater();
    void countAsClosed();

    std::shared_ptr<CameraStage> m_stage;
    std::shared_ptr<StagedCamera> m_camera;
    const std::vector<StagedMode> m_modes;
    std::vector<Platform::ComPointer<IMFMediaType>> m_types; // of the modes
    Platform::ComPointer<IMFStreamDescriptor> m_description;
    Platform::ComPointer<IMFPresentationDescriptor> m_presentation;
    Platform::ComPointer<StagedStream> m_stream;
    Platform::ComPointer<IMFAsyncCallback> m_reader; // of it
    FrameThread m_frames;
    bool m_isShutDown = false; // guarded by the stage
};

} // namespace TestSupport
