// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraFeed.h"

#include <QString>
#include <chrono>
#include <memory>
#include <optional>

namespace Platform {

// When the chosen camera's stream is opened, given up and opened again, and which state that is for
// the user. The same for every system; each brings its streams. On the camera thread only.
class CameraOpening
{
public:
    static constexpr std::chrono::milliseconds StartTimeout{3000};
    static constexpr std::chrono::milliseconds RetryDelay{500};
    static constexpr std::chrono::milliseconds WatchPeriod{100};

    // The streams of a system and a timer. Opens one stream at a time.
    class System
    {
    public:
        // Names this camera until it is unplugged; none if it can't be opened now.
        virtual std::optional<QString> serialOf(const QString& id) const = 0;
        // Says what becomes of it by the calls below, also from inside. False if nothing is opened.
        virtual bool openStream(const QString& serial) = 0;
        virtual void closeStream() = 0;
        // Calls wake() once, from the event loop. A new time replaces the one before.
        virtual void wakeAfter(std::chrono::milliseconds delay) = 0;
        virtual void cancelWake() = 0;

    protected:
        ~System() = default;
    };

    // How systems differ.
    struct Rules
    {
        // A start that hangs is given up and tried again. Otherwise we wait for it, because a
        // second one would hang, too.
        bool retriesHungStart = true;
        // A reason stays until a frame comes, because the system gives it only once. Otherwise
        // every opening gives its own.
        bool keepsReason = true;
    };

    CameraOpening(System& system, const Rules& rules, std::shared_ptr<FrameSlot> slot,
                  std::shared_ptr<CameraFeed::Listener> listener);

    // From the user
    void open(int generation, const QString& id); // now, or once it is there
    void close();
    void reopen(); // because something else is wanted of the stream
    int generation() const { return m_generation; }

    // From the list
    void forgetCamera();           // it is gone, and with it what was wrong
    void forgetCameraIfReplaced(); // its id has another serial now, or none
    void openIfPresent();

    // From the stream
    void startBegan(); // the start timeout runs from now on
    void streamRuns();
    void frameArrived();
    // Why there are no frames, and which program uses a busy camera.
    void setReason(DeviceState state, const QString& program = {});
    void framesUnreadable(const QString& problem); // it is for the log
    // May be called from inside the stream.
    void streamEnded(std::optional<DeviceState> why, const QString& program = {});

    void wake();

private:
    enum class Phase { Idle, Starting, Running, Ending, Retrying };

    void wakeIn(Phase phase, std::chrono::milliseconds delay);
    void dropStream();
    void reportUnlessExplained(DeviceState state);
    void report(DeviceState state, const QString& program = {});

    System& m_system;
    const Rules m_rules;
    std::shared_ptr<FrameSlot> m_slot;
    std::shared_ptr<CameraFeed::Listener> m_listener;
    QString m_id; // empty while closed
    int m_generation = 0;
    QString m_serial; // of the camera that was opened last
    Phase m_phase = Phase::Idle;
    DeviceState m_state = DeviceState::Ready;
    QString m_program; // that uses the camera while it is busy
    bool m_isExplained = false;
};

} // namespace Platform
