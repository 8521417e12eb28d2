// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/directshow/StagedFilter.h"

#include <utility>

// Must follow windows.h.
#include <evcode.h>

using Platform::ComPointer;

namespace TestSupport {

StagedFilter::StagedFilter(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera)
    : m_stage(stage), m_camera(camera), m_pin(*this, stage, camera), m_frames(stage, camera)
{
    ++m_stage->objects;
    const std::scoped_lock lock(m_stage->mutex);
    ++m_stage->opened[m_camera->link];
}

StagedFilter::~StagedFilter()
{
    m_frames.stop();
    --m_stage->objects;
    const std::scoped_lock lock(m_stage->mutex);
    --m_stage->opened[m_camera->link];
}

HRESULT StagedFilter::Run(REFERENCE_TIME start)
{
    m_stage->pass(m_camera->hangsInStart);
    if (!m_frames.isRunning()) {
        m_pin.commit(true);
        m_frames.start(
            m_pin.mode(), [this](const QByteArray& frame, int /*number*/) { deliver(frame); },
            [this] { m_pin.endStream(); });
    }
    return OnePinFilter::Run(start);
}

HRESULT StagedFilter::Stop()
{
    m_stage->pass(m_camera->hangsInShutdown);
    m_pin.commit(false); // whoever waits for memory goes on
    m_frames.stop();
    return OnePinFilter::Stop();
}

void StagedFilter::deliver(const QByteArray& frame)
{
    HRESULT error = S_OK;
    {
        const std::scoped_lock lock(m_stage->mutex);
        error = std::exchange(m_camera->streamError, S_OK);
    }
    ComPointer<IMediaEventSink> graphEvents;
    if (FAILED(error) &&
        SUCCEEDED(graph()->QueryInterface(__uuidof(IMediaEventSink), graphEvents.putVoid()))) {
        graphEvents->Notify(EC_ERRORABORT, error, 0);
        return;
    }
    m_pin.deliver(frame);
}

} // namespace TestSupport
