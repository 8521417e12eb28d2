// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/devices/camera/FrameConverter.h"
#include "platform/devices/v4l2/V4l2Parts.h"

#include <QThread>
#include <atomic>

typedef struct _GstSample GstSample;

namespace Platform {

// One opening of a camera: a thread that lives as long, as a driver may take any time to open and
// to close. It runs a fixed pipeline, the source and an appsink, and converts the pictures.
class V4l2Stream final : public QThread
{
    Q_OBJECT
    Q_DISABLE_COPY(V4l2Stream)

public:
    // Called by letter, where the mailbox is.
    class Listener
    {
    public:
        virtual void streamOpens() = 0; // a deadline makes sense from now on
        virtual void streamRuns() = 0;
        virtual void firstFrameArrived() = 0;
        virtual void streamEnded(DeviceState state, const QString& error) = 0;

    protected:
        ~Listener() = default;
    };

    V4l2Stream(const V4l2Parts& parts, const QString& path, int generation,
               std::shared_ptr<FrameSlot> slot, std::shared_ptr<CameraFeed::Listener> user,
               Mailbox::Sender sender, Listener& listener);
    ~V4l2Stream() override;

    void setOutputSize(const QSize& pixels); // thread-safe

protected:
    void run() override; // until an interruption is requested

private:
    void open();
    void fail(const QString& text, DeviceState state = DeviceState::Failed);
    template <typename Function>
    void tell(Function function);
    void play(GstElement* pipeline, GstElement* sink);
    void deliver(GstSample* sample);

    const V4l2Parts m_parts;
    const QString m_path;
    const int m_generation;
    const std::shared_ptr<FrameSlot> m_slot;
    const std::shared_ptr<CameraFeed::Listener> m_user;
    const Mailbox::Sender m_sender;
    Listener& m_listener;
    std::atomic<QSize> m_outputSize;
    FrameConverter m_converter;
    bool m_hasFrame = false;
};

} // namespace Platform
