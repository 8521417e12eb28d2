// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

namespace Platform {

// The video devices that are plugged in. On the camera thread only.
class VideoDevices
{
public:
    using Properties = QMap<QString, QString>; // as udev names them

    class Listener
    {
    public:
        virtual void deviceFound(const Properties& properties) = 0; // or its properties changed
        virtual void deviceGone(const QString& path) = 0;

    protected:
        ~Listener() = default;
    };

    virtual ~VideoDevices() = default;

    // Reports present devices from inside the call, and changes from the event loop.
    virtual void start(Listener& listener) = 0;
};

} // namespace Platform
