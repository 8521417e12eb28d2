// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/windowscameras/FrameThread.h"

#include "tests/devices/windowscameras/StagedFrame.h"

#include <chrono>
#include <utility>

namespace TestSupport {

namespace {

using Clock = std::chrono::steady_clock;

Clock::duration periodOf(const StagedMode& mode)
{
    return Clock::duration(std::chrono::seconds(mode.rateDenominator)) /
           qMax(mode.rateNumerator, 1);
}

} // namespace

FrameThread::FrameThread(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera)
    : m_stage(std::move(stage)), m_camera(std::move(camera))
{
}

void FrameThread::start(const StagedMode& mode, Deliver deliver, AtEnd atEnd)
{
    m_isEnding = false;
    m_thread = std::thread([this, mode, deliver = std::move(deliver), atEnd = std::move(atEnd)] {
        run(mode, deliver, atEnd);
    });
}

void FrameThread::stop()
{
    {
        const std::scoped_lock lock(m_stage->mutex);
        m_isEnding = true;
        m_stage->goesOn.notify_all();
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void FrameThread::run(const StagedMode& mode, const Deliver& deliver, const AtEnd& atEnd)
{
    const std::vector<QByteArray> frames = {frameOf(mode, 0), frameOf(mode, 1)};
    const Clock::duration period = periodOf(mode);
    auto due = Clock::now();
    std::unique_lock lock(m_stage->mutex);
    for (int number = 0; !m_isEnding; ++number) {
        due = qMax(due + period, Clock::now());
        if (m_stage->goesOn.wait_until(lock, due, [this] { return m_isEnding.load(); })) {
            return;
        }
        if (!m_camera->isPresent || m_camera->isSilent) {
            continue;
        }
        if (m_camera->isOver) {
            lock.unlock();
            atEnd();
            return;
        }
        QByteArray frame = frames[static_cast<std::size_t>(number) % frames.size()];
        frame.truncate(m_camera->hasBrokenFrames ? frame.size() / 3 : frame.size());
        lock.unlock();
        deliver(frame, number);
        lock.lock();
    }
}

} // namespace TestSupport
