// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

namespace Platform {

// Which video devices are plugged in. On the camera thread only.
class VideoDevices
{
public:
    using Properties = QMap<QString, QString>; // as udev names them

    class Listener
    {
    public:
        virtual void deviceFound(const Properties& properties) = 0; // or has other properties now
        virtual void deviceGone(const QString& path) = 0;

    protected:
        ~Listener() = default;
    };

    virtual ~VideoDevices() = default;

    // Tells what is there from inside the call, and what changes from the event loop.
    virtual void start(Listener& listener) = 0;
};

} // namespace Platform
