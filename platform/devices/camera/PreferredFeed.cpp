// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/PreferredFeed.h"

#include "platform/backend/Log.h"
#include "platform/devices/camera/FrameSlot.h"

#include <algorithm>

namespace Platform {

// What one of the two feeds says, posted to the GUI thread. Frames are in the slot already.
class PreferredFeed::Side final : public Listener
{
public:
    Side(PreferredFeed* owner, bool isFirst, Mailbox::Sender sender)
        : m_owner(owner),
          m_isFirst(isFirst),
          m_sender(std::move(sender)),
          m_frames(owner->m_listener)
    {
    }

    void listArrived(const DeviceList& devices, const QString& preferredId,
                     CameraServer server) override
    {
        m_sender.post(
            [owner = m_owner, isFirst = m_isFirst, list = List{devices, preferredId, server}] {
                owner->onList(isFirst, list);
            });
    }
    void stateChanged(int generation, DeviceState state, const QString& program) override
    {
        m_sender.post(
            [owner = m_owner, isFirst = m_isFirst, told = State{generation, state, program}] {
                owner->onState(isFirst, told);
            });
    }
    void frameArrived() override { m_frames->frameArrived(); }
    void serverMissing() override
    {
        m_sender.post([owner = m_owner] { owner->onServerMissing(); });
    }

private:
    PreferredFeed* m_owner;
    bool m_isFirst;
    Mailbox::Sender m_sender;
    std::shared_ptr<Listener> m_frames;
};

PreferredFeed::PreferredFeed(const FeedMaker& makeFirst, FeedMaker makeSecond,
                             std::shared_ptr<FrameSlot> slot, std::unique_ptr<Listener> listener,
                             std::shared_ptr<EndingThreads> ending)
    : m_makeSecond(std::move(makeSecond)),
      m_slot(std::move(slot)),
      m_listener(std::move(listener)),
      m_ending(std::move(ending))
{
    const auto prepare = [](QTimer& timer, std::chrono::milliseconds interval, auto expired) {
        timer.setSingleShot(true);
        timer.setInterval(interval);
        QObject::connect(&timer, &QTimer::timeout, &timer, expired);
    };
    prepare(m_patience, Patience, [this] { patienceEnded(); });
    prepare(m_release, ReleaseDelay, [this] { openTakenOver(); });
    prepare(m_takeover, TakeoverTimeout, [this] { endTakeover(); });
    m_first = makeFirst(m_slot, std::make_unique<Side>(this, true, m_mailbox.sender()), m_ending);
}

PreferredFeed::~PreferredFeed()
{
    m_mailbox.close();
}

void PreferredFeed::open(int generation, const QString& id)
{
    closeOpen();
    m_generation = generation;
    m_id = id;
    active().open(generation, id);
}

void PreferredFeed::close()
{
    closeOpen();
    considerFirst();
}

void PreferredFeed::closeOpen()
{
    m_release.stop();
    m_takeover.stop();
    m_slot->setHeld(false);
    m_id.clear();
    active().close();
}

void PreferredFeed::setOutputSize(const QSize& pixels)
{
    m_outputSize = pixels;
    m_first->setOutputSize(pixels);
    if (m_second) {
        m_second->setOutputSize(pixels);
    }
}

void PreferredFeed::onList(bool isFirst, const List& list)
{
    if (!isFirst) {
        m_secondList = list;
        m_secondList.server = m_isFirstMissing ? CameraServer::Missing : list.server;
        tell(m_secondList);
        considerFirst();
        return;
    }
    m_firstList = list;
    m_isFirstMissing = false;
    m_hasFirstListed = m_hasFirstListed || !list.devices.empty();
    if (m_second) {
        considerFirst();
        return;
    }
    tell(list);
    if (m_hasFirstListed) { // later it may list none: they were unplugged
        m_patience.stop();
    } else if (list.server == CameraServer::Answers && !m_patience.isActive()) {
        m_patience.start();
    }
}

void PreferredFeed::onServerMissing()
{
    m_isFirstMissing = true;
    useSecond();
}

void PreferredFeed::patienceEnded()
{
    if (m_second) {
        m_hasWaited = true;
        considerFirst();
    } else {
        useSecond();
    }
}

void PreferredFeed::onState(bool isFirst, const State& state)
{
    if (isFirst == (m_second != nullptr)) {
        return;
    }
    if (m_takeover.isActive() && state.state != DeviceState::Working) {
        m_hiddenState = state; // such as "busy": the other system may still have the camera
        return;
    }
    m_hiddenState = state;
    if (m_takeover.isActive()) {
        endTakeover();
    } else {
        m_listener->stateChanged(state.generation, state.state, state.program);
    }
}

void PreferredFeed::useSecond()
{
    if (m_second || m_hasFirstListed) {
        return;
    }
    m_secondMailbox.emplace();
    m_second = m_makeSecond(m_slot, std::make_unique<Side>(this, false, m_secondMailbox->sender()),
                            m_ending);
    m_second->setOutputSize(m_outputSize);
    if (!m_id.isEmpty()) {
        m_first->close();
        m_second->open(m_generation, m_id);
    }
}

// The first system may list its cameras one after the other.
void PreferredFeed::considerFirst()
{
    if (!m_second || m_firstList.devices.empty() || !mayLeaveSecond()) {
        return;
    }
    const bool hasAll = std::all_of(
        m_secondList.devices.begin(), m_secondList.devices.end(),
        [this](const DeviceInfo& device) { return findDevice(m_firstList.devices, device.id); });
    if (hasAll || m_hasWaited) {
        useFirst();
    } else if (!m_patience.isActive()) {
        m_patience.start();
    }
}

// Not while it has a camera in use that the first one doesn't know.
bool PreferredFeed::mayLeaveSecond() const
{
    return m_id.isEmpty() || findDevice(m_firstList.devices, m_id) ||
           !findDevice(m_secondList.devices, m_id);
}

void PreferredFeed::useFirst()
{
    qCInfo(Log::camera, "The camera server lists cameras now, and is used from now on");
    m_patience.stop();
    m_secondMailbox.reset();
    m_slot->setHeld(!m_id.isEmpty());
    m_second.reset();
    tell(m_firstList);
    if (!m_id.isEmpty()) {
        m_hiddenState = {m_generation, DeviceState::Ready, {}};
        m_takeover.start();
        m_release.start();
    }
}

void PreferredFeed::openTakenOver()
{
    m_first->open(m_generation, m_id); // the same generation, so that its frames go on
}

void PreferredFeed::endTakeover()
{
    m_takeover.stop();
    m_slot->setHeld(false);
    m_listener->stateChanged(m_hiddenState.generation, m_hiddenState.state, m_hiddenState.program);
}

void PreferredFeed::tell(const List& list)
{
    m_listener->listArrived(list.devices, list.preferredId, list.server);
}

FeedMaker preferredFeedMaker(FeedMaker makeFirst, FeedMaker makeSecond)
{
    return [makeFirst = std::move(makeFirst), makeSecond = std::move(makeSecond)](
               const auto& slot, auto listener, const auto& ending) {
        return std::make_unique<PreferredFeed>(makeFirst, makeSecond, slot, std::move(listener),
                                               ending);
    };
}

} // namespace Platform
