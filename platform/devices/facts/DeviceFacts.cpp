// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/facts/DeviceFacts.h"

#include "platform/backend/DetachedThread.h"
#include "platform/backend/MachineFacts.h"
#include "platform/devices/facts/LocalAddress.h"

#include <utility>

namespace Platform {

namespace {

constexpr int SlowFacts = 2; // that prepare() waits for

// If there is no thread for it, the fact stays unknown.
template <typename Gather, typename Take>
void gatherElsewhere(const Mailbox::Sender& sender, Gather gather, Take take)
{
    DetachedThread::run(
        [sender, gather, take] { sender.post([take, value = gather()] { take(value); }); });
}

} // namespace

DeviceFacts::DeviceFacts(const DeviceEngineConfig& config, const QString& serverName,
                         ProbeMaker makeProbe)
    : m_config(config),
      m_serverName(serverName),
      m_makeProbe(std::move(makeProbe)),
      m_processorName(MachineFacts::processorName()),
      m_operatingSystem(MachineFacts::operatingSystem())
{
    m_deadline.setSingleShot(true);
    m_deadline.setTimerType(Qt::PreciseTimer);
    m_deadline.setInterval(PrepareDeadlineMs);
    QObject::connect(&m_deadline, &QTimer::timeout, &m_deadline, [this] { finish(); });
    m_addressDeadline.setSingleShot(true);
    m_addressDeadline.setInterval(AddressDeadlineMs);
    QObject::connect(&m_addressDeadline, &QTimer::timeout, &m_addressDeadline,
                     [this] { m_probe.reset(); });
    m_addressRequest.setSingleShot(true);
    m_addressRequest.setInterval(0);
    QObject::connect(&m_addressRequest, &QTimer::timeout, &m_addressRequest,
                     [this] { askForClientAddress(m_run); });
}

DeviceFacts::~DeviceFacts() = default;

void DeviceFacts::prepare(Done done)
{
    m_waiting.push_back(std::move(done));
    if (m_waiting.size() > 1) {
        return; // shares the run under way
    }
    m_missing = SlowFacts;
    const auto taken = [this, run = ++m_run] { tick(run); };
    m_deadline.start();
    gatherUser(taken);
    gatherAvailableBytes(taken);
    m_clientAddress = LocalAddress::find(); // until a server tells a better one
}

QString DeviceFacts::nickName() const
{
    if (!m_config.nickname.isEmpty()) {
        return m_config.nickname;
    }
    return m_user.realName.isEmpty() ? m_user.loginName : m_user.realName;
}

void DeviceFacts::refreshUserInfo()
{
    gatherUser([this] {
        if (m_listener) {
            m_listener->userInfoArrived();
        }
    });
}

void DeviceFacts::gatherUser(Done taken)
{
    gatherElsewhere(m_mailbox.sender(), &HostUser::current,
                    [this, taken = std::move(taken)](const HostUser& user) {
                        m_user = user;
                        taken();
                    });
}

void DeviceFacts::gatherAvailableBytes(Done taken)
{
    gatherElsewhere(
        m_mailbox.sender(),
        [folder = m_config.cacheFolder] { return MachineFacts::availableBytes(folder); },
        [this, taken = std::move(taken)](qint64 bytes) {
            m_availableBytes = bytes;
            taken();
        });
}

void DeviceFacts::askForClientAddress(int run)
{
    m_addressDeadline.start();
    m_probe = m_makeProbe(*this, [this, run](const QString& address) {
        m_clientAddress = address;
        // Later, because the probe itself calls this.
        m_mailbox.sender().post([this, run] {
            if (run == m_run) {
                m_addressDeadline.stop();
                m_probe.reset();
            }
        });
    });
}

void DeviceFacts::tick(int run)
{
    if (run == m_run && --m_missing == 0) {
        finish();
    }
}

void DeviceFacts::finish()
{
    m_deadline.stop();
    m_addressRequest.start();
    const std::vector<Done> waiting = std::exchange(m_waiting, {});
    for (const Done& done : waiting) {
        done();
    }
}

} // namespace Platform
