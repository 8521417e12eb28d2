// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/v4l2/VideoDevices.h"

#include <QSocketNotifier>
#include <memory>

struct udev;
struct udev_device;
struct udev_monitor;

namespace Platform {

// The kernel's video devices, by libudev.
class UdevDevices final : public VideoDevices
{
public:
    UdevDevices();
    ~UdevDevices() override;
    UdevDevices(const UdevDevices&) = delete;
    UdevDevices& operator=(const UdevDevices&) = delete;

    void start(Listener& listener) override;

private:
    void watch();
    void listPresent();
    void onEvent();
    void tell(udev_device* device);

    Listener* m_listener = nullptr;
    udev* m_udev;
    udev_monitor* m_monitor = nullptr;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Platform
