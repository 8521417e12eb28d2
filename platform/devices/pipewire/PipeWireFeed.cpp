// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireFeed.h"

#include "platform/devices/pipewire/CameraSession.h"
#include "platform/devices/pipewire/PipeWireThread.h"

namespace Platform {

PipeWireFeed::PipeWireFeed(std::shared_ptr<PipeWireThread> thread, std::shared_ptr<FrameSlot> slot,
                           std::unique_ptr<Listener> listener)
    : m_thread(std::move(thread)), m_session(std::make_shared<std::unique_ptr<CameraSession>>())
{
    auto passed = std::make_shared<std::unique_ptr<Listener>>(std::move(listener));
    m_thread->post([session = m_session, slot, passed](PipeWireConnection& connection) {
        *session = std::make_unique<CameraSession>(connection, slot, std::move(*passed));
    });
}

PipeWireFeed::~PipeWireFeed()
{
    m_thread->post([session = m_session](PipeWireConnection&) { session->reset(); });
}

void PipeWireFeed::open(int generation, const QString& id)
{
    post([generation, id](CameraSession& session) { session.open(generation, id); });
}

void PipeWireFeed::close()
{
    post([](CameraSession& session) { session.close(); });
}

void PipeWireFeed::setOutputSize(const QSize& pixels)
{
    post([pixels](CameraSession& session) { session.setOutputSize(pixels); });
}

void PipeWireFeed::post(std::function<void(CameraSession&)> job)
{
    m_thread->post([session = m_session, job = std::move(job)](PipeWireConnection&) {
        if (*session) {
            job(**session);
        }
    });
}

} // namespace Platform
