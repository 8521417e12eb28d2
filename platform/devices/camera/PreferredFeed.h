// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/devices/camera/CameraFeed.h"

#include <QTimer>
#include <chrono>
#include <optional>

namespace Platform {

// Two systems that know the same cameras: the first one as soon as it lists any, the second one
// meanwhile. Both name a camera by its place, so the chosen one stays. A camera in use is taken
// over once the first system lists it too; its last frame stays until then.
class PreferredFeed final : public CameraFeed
{
public:
    // How long the first system may list no camera, and then not all cameras.
    static constexpr std::chrono::milliseconds Patience{1000};
    // The second system needs it to let go of the camera.
    static constexpr std::chrono::milliseconds ReleaseDelay{150};
    // For the first frame after that.
    static constexpr std::chrono::milliseconds TakeoverTimeout{3000};

    PreferredFeed(const FeedMaker& makeFirst, FeedMaker makeSecond, std::shared_ptr<FrameSlot> slot,
                  std::unique_ptr<Listener> listener, std::shared_ptr<EndingThreads> ending);
    ~PreferredFeed() override;
    PreferredFeed(const PreferredFeed&) = delete;
    PreferredFeed& operator=(const PreferredFeed&) = delete;

    void open(int generation, const QString& id) override;
    void close() override;
    void setOutputSize(const QSize& pixels) override;

private:
    class Side;
    struct List
    {
        DeviceList devices;
        QString preferredId;
        CameraServer server = CameraServer::Answers;
    };
    struct State
    {
        int generation = 0;
        DeviceState state = DeviceState::Ready;
        QString program;
    };

    void onList(bool isFirst, const List& list);
    void onServerMissing();
    void onState(bool isFirst, const State& state);
    void patienceEnded();
    void useSecond();
    void considerFirst();
    void useFirst();
    void closeOpen();
    void openTakenOver();
    void endTakeover();
    void tell(const List& list);
    bool mayLeaveSecond() const;
    CameraFeed& active() { return m_second ? *m_second : *m_first; }

    FeedMaker m_makeSecond;
    std::shared_ptr<FrameSlot> m_slot;
    std::shared_ptr<Listener> m_listener;
    std::shared_ptr<EndingThreads> m_ending;
    QSize m_outputSize;
    int m_generation = 0; // of the open camera
    QString m_id;         // of the open camera; empty while closed
    List m_firstList;
    List m_secondList;
    bool m_hasFirstListed = false; // any camera
    bool m_isFirstMissing = false; // its server doesn't answer
    bool m_hasWaited = false;      // for the first one to list all cameras
    QTimer m_patience;
    QTimer m_release;
    QTimer m_takeover;   // runs until the first frame of the first system
    State m_hiddenState; // what the first system said meanwhile
    Mailbox m_mailbox;
    std::optional<Mailbox> m_secondMailbox;
    std::unique_ptr<CameraFeed> m_second; // only while it is used
    std::unique_ptr<CameraFeed> m_first;
};

FeedMaker preferredFeedMaker(FeedMaker makeFirst, FeedMaker makeSecond);

} // namespace Platform
