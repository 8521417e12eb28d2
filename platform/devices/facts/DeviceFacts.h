// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/backend/NetworkProbe.h"
#include "platform/backend/SystemFacts.h"
#include "platform/devices/DeviceEngineConfig.h"
#include "platform/devices/facts/HostUser.h"

#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

namespace Platform {

// The facts of this machine and its user. What may wait for a disk, a user database or a server is
// gathered elsewhere and arrives through the mailbox.
class DeviceFacts final : public SystemFacts, private NetworkProbe::Listener
{
public:
    using Done = std::function<void()>;
    using AddressHandler = std::function<void(const QString&)>;
    // Makes the probe that learns the client's address.
    using ProbeMaker = std::function<std::unique_ptr<NetworkProbe>(NetworkProbe::Listener& listener,
                                                                   AddressHandler handler)>;

    static constexpr int PrepareDeadlineMs = 1000;
    static constexpr int AddressDeadlineMs = 5000; // how long the server is asked for the address

    DeviceFacts(const DeviceEngineConfig& config, const QString& serverName, ProbeMaker makeProbe);
    ~DeviceFacts() override;

    // Gathers the slow facts anew, then calls done from the event loop: when they are there, at the
    // latest after the deadline. A fact that comes later is taken still. The address as the server
    // sees it is not waited for: until it comes, clientAddress() is the local one. The server is
    // asked as soon as the event loop runs after that, so that a dialog is there first.
    void prepare(Done done);

    void setListener(SystemFacts::Listener* listener) override { m_listener = listener; }

    QString serverName() const override { return m_serverName; }
    QString cdnFirstPart() const override { return m_config.cdnFirstPart; }
    QString cdnSecondPart() const override { return m_config.cdnSecondPart; }
    QString nickName() const override;
    QString accountName() const override { return m_config.account; }
    QString accountFallbackName() const override { return m_user.loginName; }
    void refreshUserInfo() override;

    QString processorName() const override { return m_processorName; }
    qint64 cacheVolumeAvailableBytes() const override { return m_availableBytes; }
    QString clientAddress() const override { return m_clientAddress; }
    QStringList operatingSystem() const override { return m_operatingSystem; }

private:
    void networkFiguresChanged() override {} // only the address is wanted
    void gatherUser(Done taken);
    void gatherAvailableBytes(Done taken);
    void askForClientAddress(int run);
    void tick(int run);
    void finish();

    const DeviceEngineConfig m_config;
    const QString m_serverName;
    const ProbeMaker m_makeProbe;
    const QString m_processorName;
    const QStringList m_operatingSystem;
    SystemFacts::Listener* m_listener = nullptr;
    HostUser m_user;
    qint64 m_availableBytes = -1;
    QString m_clientAddress;
    int m_run = 0;     // of prepare()
    int m_missing = 0; // facts of this run
    std::vector<Done> m_waiting;
    QTimer m_deadline;
    QTimer m_addressRequest;
    QTimer m_addressDeadline;
    std::unique_ptr<NetworkProbe> m_probe;
    Mailbox m_mailbox;
};

} // namespace Platform
