// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/mediafoundation/EventGenerator.h"

#include <QByteArray>
#include <deque>
#include <memory>
#include <mutex>

namespace TestSupport {

struct CameraStage;

// The video of a staged camera. Its source outlives every call.
class StagedStream final : public EventGenerator<IMFMediaStream>
{
public:
    StagedStream(const std::shared_ptr<CameraStage>& stage, IMFMediaSource& source,
                 IMFStreamDescriptor& descriptor);

    HRESULT STDMETHODCALLTYPE GetMediaSource(IMFMediaSource** source) override;
    HRESULT STDMETHODCALLTYPE GetStreamDescriptor(IMFStreamDescriptor** descriptor) override;
    HRESULT STDMETHODCALLTYPE RequestSample(IUnknown* token) override;

    // To whoever has asked for a frame; times in units of 100 ns.
    void deliver(const QByteArray& frame, LONGLONG time, LONGLONG duration);

private:
    struct Request
    {
        Platform::ComPointer<IUnknown> token; // may be null
    };

    bool takeRequest(Request& request);

    IMFMediaSource& m_source;
    IMFStreamDescriptor& m_descriptor; // of the source
    std::mutex m_mutex;
    std::deque<Request> m_requests; // guarded by the mutex
};

} // namespace TestSupport
