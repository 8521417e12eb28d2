// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/devices/camera/CameraModes.h"
#include "platform/devices/camera/FrameConverter.h"
#include "platform/devices/v4l2/V4l2Parts.h"

#include <QThread>
#include <atomic>
#include <optional>

typedef struct _GstBus GstBus;
typedef struct _GstSample GstSample;

namespace Platform {

// One opening of a camera, on its own thread, because a driver may take any time to open and to
// close. It runs a pipeline of a source and an appsink, and converts the frames.
class V4l2Stream final : public QThread
{
    Q_OBJECT
    Q_DISABLE_COPY(V4l2Stream)

public:
    // Called on the thread of the mailbox, through it.
    class Listener
    {
    public:
        virtual void streamOpens() = 0; // GStreamer is loaded, and the driver is asked
        virtual void streamRuns() = 0;
        virtual void firstFrameArrived() = 0;
        virtual void framesUnreadable(const QString& problem) = 0;
        // The program is the one that uses a busy camera, if it is known.
        virtual void streamEnded(DeviceState state, const QString& error,
                                 const QString& program) = 0;

    protected:
        ~Listener() = default;
    };

    V4l2Stream(const V4l2Parts& parts, const QString& path, int generation,
               std::shared_ptr<FrameSlot> slot, std::shared_ptr<CameraFeed::Listener> feed,
               Mailbox::Sender sender, Listener& listener);
    ~V4l2Stream() override;

    void setOutputSize(const QSize& pixels); // thread-safe

protected:
    void run() override; // until an interruption is requested

private:
    struct Failure
    {
        DeviceState state;
        QString text;
    };

    static std::optional<Failure> failureOn(GstBus* bus);
    void open();
    void fail(const QString& text, DeviceState state = DeviceState::Failed);
    template <typename Function>
    void tell(Function function);
    std::optional<Failure> startPipeline(GstElement* pipeline, GstElement* sink, GstBus* bus);
    void startWithAnyMode(GstElement* pipeline, GstElement* sink);
    void play(GstElement* pipeline, GstElement* sink);
    std::optional<CameraMode> bestMode() const;
    void deliver(GstSample* sample);

    const V4l2Parts m_parts;
    const QString m_path;
    const int m_generation;
    const std::shared_ptr<FrameSlot> m_slot;
    const std::shared_ptr<CameraFeed::Listener> m_feed;
    const Mailbox::Sender m_sender;
    Listener& m_listener;
    std::atomic<QSize> m_outputSize;
    FrameConverter m_converter;
    CameraModes m_modes;
    std::optional<CameraMode> m_mode; // that the camera is asked for
    bool m_hasFrame = false;
};

} // namespace Platform
