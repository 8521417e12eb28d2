// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

#include <QSize>
#include <chrono>
#include <functional>
#include <memory>

namespace Platform {

class EndingThreads;
class FrameSlot;

// Changes of the list come several at a time. So long after the first one they are told, once.
constexpr std::chrono::milliseconds CameraBurstWindow(50);

enum class CameraServer {
    Answers,
    Denies,
    Lost,
    Missing,  // none answers, and the list comes from the system itself
    NotBuilt, // the system lacks what the engine needs for cameras
};

// What one user of the cameras gets from a system: the list, and the frames of one camera, which go
// into the slot. Used on the GUI thread; nothing here waits, and the destructor only asks its
// threads to end.
class CameraFeed
{
public:
    // Called on a thread of the feed.
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void listArrived(const DeviceList& devices, const QString& preferredId,
                                 CameraServer server) = 0;
        // The program is the one that uses a busy camera, if it is known.
        virtual void stateChanged(int generation, DeviceState state, const QString& program) = 0;
        virtual void frameArrived() = 0;
        virtual void serverMissing() = 0; // no server of this system answers
    };

    virtual ~CameraFeed() = default;

    virtual void open(int generation, const QString& id) = 0; // now, or once it is there
    virtual void close() = 0;
    virtual void setOutputSize(const QSize& pixels) = 0;
};

using FeedMaker = std::function<std::unique_ptr<CameraFeed>(std::shared_ptr<FrameSlot>,
                                                            std::unique_ptr<CameraFeed::Listener>,
                                                            std::shared_ptr<EndingThreads>)>;

} // namespace Platform
