// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Platform {

// One sound that plays on the current speaker from construction to destruction.
class PlayerBackend
{
public:
    class Listener
    {
    public:
        // Exactly once, on the GUI thread from the event loop, also if nothing could be played.
        virtual void playbackFinished() = 0;

    protected:
        ~Listener() = default;
    };

    virtual ~PlayerBackend() = default;
};

} // namespace Platform
