// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Platform {

// Plays one sound on the current speaker, from construction to destruction.
class PlayerBackend
{
public:
    class Listener
    {
    public:
        // Called exactly once, on the GUI thread from the event loop, even if nothing was played.
        virtual void playbackFinished() = 0;

    protected:
        ~Listener() = default;
    };

    virtual ~PlayerBackend() = default;
};

} // namespace Platform
