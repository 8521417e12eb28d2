// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraBackend.h"
#include "platform/backend/Mailbox.h"

#include <memory>

namespace Platform {

class CameraSession;
class PictureSlot;
class PipeWireThread;
class ReportSink;
class SettingsStore;

// A user of the cameras of a PipeWire server. What waits for the server is done by its session on
// the camera thread; this side only posts to it and is posted to.
class PipeWireCamera final : public CameraBackend
{
public:
    PipeWireCamera(Listener& listener, std::shared_ptr<PipeWireThread> thread,
                   SettingsStore& settings, ReportSink& report);
    ~PipeWireCamera() override;
    PipeWireCamera(const PipeWireCamera&) = delete;
    PipeWireCamera& operator=(const PipeWireCamera&) = delete;

    DeviceList devices() const override { return m_devices; }
    QString currentId() const override { return m_currentId; }
    QString currentName() const override { return m_currentName; }
    void setCurrent(const QString& id) override;
    DeviceState state() const override;
    bool delivers() const override;

    void start() override;
    void stop() override;
    void setOutputSize(const QSize& pixels) override;
    QImage latestPicture() const override;

private:
    class Post;
    using SessionJob = std::function<void(CameraSession&)>;

    void onListArrived(const DeviceList& devices, const QString& preferredId, bool isDenied);
    void onStateChanged(int generation, DeviceState state);
    void onPictureArrived();

    void postToSession(SessionJob job);
    void chooseFirst(const QString& preferredId);
    void choose(const QString& id);
    void openCurrent();
    void recordMeasurement();
    const DeviceInfo* findDevice(const QString& id) const;
    void notifyCurrentChanged();
    void notifyWorkState();

    Listener& m_listener;
    std::shared_ptr<PipeWireThread> m_thread;
    SettingsStore& m_settings;
    ReportSink& m_report;
    std::shared_ptr<PictureSlot> m_slot;
    std::shared_ptr<std::unique_ptr<CameraSession>> m_session; // its content: camera thread only
    DeviceList m_devices;
    QString m_currentId;
    QString m_currentName;
    bool m_isChosen = false; // by the user, or by what was there first
    bool m_isDenied = false;
    bool m_isStarted = false;
    int m_generation = 0;
    DeviceState m_openState = DeviceState::Ready; // of the chosen camera while it is there
    bool m_wasUsable = false;                     // as told last
    bool m_didDeliver = false;
    Mailbox m_mailbox;
};

} // namespace Platform
