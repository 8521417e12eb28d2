// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/UdevDevices.h"

#include "platform/backend/Log.h"

#include <cstring>
#include <libudev.h>

namespace Platform {

namespace {

constexpr const char* Subsystem = "video4linux";
// If udev has no rules for cameras, we take the kernel's name.
const QString NameProperty = QStringLiteral("ID_V4L_PRODUCT");

VideoDevices::Properties propertiesOf(udev_device* device)
{
    VideoDevices::Properties result;
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_device_get_properties_list_entry(device))
    {
        result.insert(QString::fromUtf8(udev_list_entry_get_name(entry)),
                      QString::fromUtf8(udev_list_entry_get_value(entry)));
    }
    if (!result.contains(NameProperty)) {
        result.insert(NameProperty,
                      QString::fromUtf8(udev_device_get_sysattr_value(device, "name")));
    }
    return result;
}

} // namespace

UdevDevices::UdevDevices() : m_udev(udev_new())
{
}

UdevDevices::~UdevDevices()
{
    m_notifier.reset();
    udev_monitor_unref(m_monitor);
    udev_unref(m_udev);
}

// Watches first: a device that is plugged in meanwhile is found twice, not missed.
void UdevDevices::start(Listener& listener)
{
    m_listener = &listener;
    if (m_udev) {
        watch();
        listPresent();
    }
}

void UdevDevices::watch()
{
    m_monitor = udev_monitor_new_from_netlink(m_udev, "udev");
    if (!m_monitor ||
        udev_monitor_filter_add_match_subsystem_devtype(m_monitor, Subsystem, nullptr) < 0 ||
        udev_monitor_enable_receiving(m_monitor) < 0) {
        qCInfo(Log::camera,
               "No events from udev: cameras that are plugged in later aren't noticed");
        return;
    }
    m_notifier =
        std::make_unique<QSocketNotifier>(udev_monitor_get_fd(m_monitor), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { onEvent(); });
}

void UdevDevices::listPresent()
{
    udev_enumerate* const list = udev_enumerate_new(m_udev);
    udev_enumerate_add_match_subsystem(list, Subsystem);
    udev_enumerate_scan_devices(list);
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(list))
    {
        udev_device* const device =
            udev_device_new_from_syspath(m_udev, udev_list_entry_get_name(entry));
        if (device) {
            tell(device);
            udev_device_unref(device);
        }
    }
    udev_enumerate_unref(list);
}

void UdevDevices::onEvent()
{
    udev_device* const device = udev_monitor_receive_device(m_monitor);
    if (device) {
        tell(device);
        udev_device_unref(device);
    }
}

void UdevDevices::tell(udev_device* device)
{
    const char* const path = udev_device_get_devnode(device);
    if (!path) {
        return;
    }
    const char* const action = udev_device_get_action(device); // none if it is from the list
    if (action && strcmp(action, "remove") == 0) {
        m_listener->deviceGone(QString::fromUtf8(path));
    } else {
        m_listener->deviceFound(propertiesOf(device));
    }
}

} // namespace Platform
