// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraBackend.h"
#include "platform/backend/Mailbox.h"
#include "platform/devices/camera/CameraFeed.h"

#include <QTimer>
#include <memory>

namespace Platform {

class FrameSlot;
class ReportSink;
class SettingsStore;

// One user's session with the cameras. Whatever waits for a server or a driver is done by the feed
// on its threads; this side posts to it and is posted to.
class DeviceCamera final : public CameraBackend
{
public:
    DeviceCamera(Listener& listener, const FeedMaker& makeFeed,
                 const std::shared_ptr<EndingThreads>& ending, SettingsStore& settings,
                 ReportSink& report);
    ~DeviceCamera() override;
    DeviceCamera(const DeviceCamera&) = delete;
    DeviceCamera& operator=(const DeviceCamera&) = delete;

    DeviceList devices() const override { return m_devices; }
    QString currentId() const override { return m_currentId; }
    QString currentName() const override { return m_currentName; }
    void setCurrent(const QString& id) override;
    DeviceState state() const override;
    DeviceState stateOf(const QString& id) const override;
    bool delivers() const override;
    CameraCause cause() const override;
    SoundServerState serverState() const override;

    void start() override;
    void stop() override;
    void setOutputSize(const QSize& pixels) override;
    QImage latestFrame() const override;

private:
    class Post;

    void onListArrived(const DeviceList& devices, const QString& preferredId, CameraServer server);
    void onStateChanged(int generation, DeviceState state, const QString& program);
    void onFrameArrived();
    void onServerMissing();

    void chooseFirst(const QString& preferredId);
    void choose(const QString& id);
    void openCurrent();
    void recordMeasurement();
    void notifyCurrentChanged();
    void notifyWorkState();
    CameraCause::Kind expectedCause() const;
    CameraCause::Kind overdueCause() const;
    void notifyCause();

    Listener& m_listener;
    SettingsStore& m_settings;
    ReportSink& m_report;
    std::shared_ptr<FrameSlot> m_slot;
    QSize m_outputSize;
    DeviceList m_devices;
    QString m_currentId;
    QString m_currentName;
    bool m_isChosen = false; // by the user, or because it was there first
    CameraServer m_server = CameraServer::Answers;
    bool m_isListed = false; // the first list has arrived
    bool m_isStarted = false;
    int m_generation = 0;
    DeviceState m_openState = DeviceState::Ready; // of the chosen camera while it is plugged in
    QString m_program;                            // that uses the camera while it is busy
    QTimer m_patience;                            // runs while the camera is starting
    bool m_isOverdue = false;
    CameraCause m_knownCause; // as the listener knows, like the next two
    bool m_wasUsable = false; // as the listener knows
    bool m_didDeliver = false;
    Mailbox m_mailbox;
    std::unique_ptr<CameraFeed> m_feed;
};

} // namespace Platform
