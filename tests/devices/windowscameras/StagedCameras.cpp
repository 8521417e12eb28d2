// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/windowscameras/StagedCameras.h"

#include "tests/devices/directshow/StagedEntry.h"
#include "tests/devices/windowscameras/CameraStage.h"

// Must follow windows.h.
#include <dbt.h>

namespace TestSupport {

namespace {

constexpr UINT BroadcastTimeoutMs = 1000; // for each window that hangs

// Any change that may let somebody go on.
template <typename Function>
void change(CameraStage& stage, Function function)
{
    const std::scoped_lock lock(stage.mutex);
    function();
    stage.goesOn.notify_all();
}

void unplugAll(CameraStage& stage, const QString& link)
{
    for (const auto& camera : stage.all) {
        camera->isPresent = camera->isPresent && camera->link != link;
    }
}

void letGoOn(StagedCamera& camera)
{
    camera.hangsInActivation = false;
    camera.hangsInStart = false;
    camera.hangsInShutdown = false;
}

} // namespace

StagedCameras::StagedCameras() : m_stage(std::make_shared<CameraStage>())
{
    CameraStage::setCurrent(m_stage);
}

StagedCameras::~StagedCameras()
{
    CameraStage::setCurrent(nullptr);
    change(*m_stage, [this] {
        m_stage->listHangs = false;
        for (const auto& camera : m_stage->all) {
            camera->isPresent = false;
            letGoOn(*camera);
        }
    });
    m_entries.clear();
}

void StagedCameras::setSystem(StagedSystem system)
{
    m_system = system;
}

void StagedCameras::plug(const QString& link, const QString& name,
                         const std::vector<StagedMode>& modes)
{
    auto camera = std::make_shared<StagedCamera>();
    camera->system = m_system;
    camera->link = link;
    camera->name = name;
    camera->modes = modes;
    change(*m_stage, [&] {
        unplugAll(*m_stage, link);
        m_stage->all.push_back(camera);
    });
    m_entries.erase(link);
    if (m_system == StagedSystem::DirectShow) {
        m_entries.emplace(link, std::make_shared<StagedEntry>(m_stage, camera));
    }
}

void StagedCameras::unplug(const QString& link)
{
    change(*m_stage, [&] { unplugAll(*m_stage, link); });
    m_entries.erase(link);
}

void StagedCameras::setName(const QString& link, const QString& name)
{
    change(*m_stage, [&] { m_stage->find(link).name = name; });
    if (m_entries.count(link) > 0) {
        m_entries.at(link)->write();
    }
}

void StagedCameras::hideLink(const QString& link)
{
    change(*m_stage, [&] { m_stage->find(link).hasLink = false; });
    if (m_entries.count(link) > 0) {
        m_entries.at(link)->write();
    }
}

void StagedCameras::castDeviceChange()
{
    DWORD_PTR result = 0;
    SendMessageTimeoutW(HWND_BROADCAST, WM_DEVICECHANGE, DBT_DEVNODES_CHANGED, 0, SMTO_ABORTIFHUNG,
                        BroadcastTimeoutMs, &result);
}

void StagedCameras::refuseList(HRESULT error)
{
    change(*m_stage, [&] { m_stage->listError = error; });
}

void StagedCameras::refuseActivation(const QString& link, HRESULT error)
{
    change(*m_stage, [&] { m_stage->find(link).activationError = error; });
}

void StagedCameras::refuseReading(const QString& link, HRESULT error)
{
    change(*m_stage, [&] { m_stage->find(link).readingError = error; });
}

void StagedCameras::hangList(bool hangs)
{
    change(*m_stage, [&] { m_stage->listHangs = hangs; });
}

void StagedCameras::hangActivation(const QString& link, bool hangs)
{
    change(*m_stage, [&] { m_stage->find(link).hangsInActivation = hangs; });
}

void StagedCameras::hangStart(const QString& link, bool hangs)
{
    change(*m_stage, [&] { m_stage->find(link).hangsInStart = hangs; });
}

void StagedCameras::hangShutdown(const QString& link, bool hangs)
{
    change(*m_stage, [&] { m_stage->find(link).hangsInShutdown = hangs; });
}

int StagedCameras::hangingCalls() const
{
    const std::scoped_lock lock(m_stage->mutex);
    return m_stage->hanging;
}

void StagedCameras::stall(const QString& link, bool isSilent)
{
    change(*m_stage, [&] { m_stage->find(link).isSilent = isSilent; });
}

void StagedCameras::breakFrames(const QString& link, bool areBroken)
{
    change(*m_stage, [&] { m_stage->find(link).hasBrokenFrames = areBroken; });
}

void StagedCameras::endStream(const QString& link)
{
    change(*m_stage, [&] { m_stage->find(link).isOver = true; });
}

void StagedCameras::breakStream(const QString& link, HRESULT error)
{
    change(*m_stage, [&] { m_stage->find(link).streamError = error; });
}

void StagedCameras::refuseConfiguration(const QString& link)
{
    change(*m_stage, [&] { m_stage->find(link).canBeConfigured = false; });
}

void StagedCameras::removeClass(const QString& link)
{
    m_entries.at(link)->removeClass();
}

int StagedCameras::lists() const
{
    const std::scoped_lock lock(m_stage->mutex);
    return m_stage->lists;
}

int StagedCameras::activations(const QString& link) const
{
    const std::scoped_lock lock(m_stage->mutex);
    return m_stage->activations.value(link);
}

int StagedCameras::opened(const QString& link) const
{
    const std::scoped_lock lock(m_stage->mutex);
    return m_stage->opened.value(link);
}

int StagedCameras::objects() const
{
    return m_stage->objects;
}

} // namespace TestSupport
