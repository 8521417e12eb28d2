// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

// A way to show a camera.
class View
{
public:
    static constexpr QSize Size{306, 172};

    virtual ~View() = default;

    virtual void go() = 0;
    virtual void stop() = 0;

    static void tellReady();
    static void setSilent() { isSilent = true; } // tells of no frames, which costs time, too
    // Reads the frame's number from its upper edge, a block for each bit.
    static void tellPainted(const QImage& frame, bool isMirrored);
    static void tellArrived(); // a frame that isn't painted

private:
    static inline bool isSilent = false;
};
