// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/directshow/OnePinFilter.h"
#include "tests/devices/directshow/StagedFilterPin.h"
#include "tests/devices/windowscameras/FrameThread.h"

namespace TestSupport {

// A camera that was opened by DirectShow.
class StagedFilter final : public Platform::OnePinFilter
{
public:
    StagedFilter(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera);

    HRESULT STDMETHODCALLTYPE Run(REFERENCE_TIME start) override;
    HRESULT STDMETHODCALLTYPE Stop() override;

    IPin& pin() override { return m_pin; }

private:
    ~StagedFilter() override;

    void deliver(const QByteArray& frame);

    const std::shared_ptr<CameraStage> m_stage;
    const std::shared_ptr<StagedCamera> m_camera;
    StagedFilterPin m_pin;
    FrameThread m_frames;
};

} // namespace TestSupport
