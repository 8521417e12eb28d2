// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/UdevDevices.h"

#include <QtTest>

// Last, because GLib has fields that are named like Qt's keywords.
#include <umockdev.h>

using namespace Platform;

namespace {

class Collector final : public VideoDevices::Listener
{
public:
    void deviceFound(const VideoDevices::Properties& properties) override
    {
        found[properties.value(QStringLiteral("DEVNAME"))] = properties;
        ++events;
    }
    void deviceGone(const QString& path) override
    {
        found.remove(path);
        ++events;
    }
    QString valueOf(const char* path, const char* property) const
    {
        return found.value(QString::fromLatin1(path)).value(QString::fromLatin1(property));
    }

    QMap<QString, VideoDevices::Properties> found;
    int events = 0;
};

} // namespace

// On a machine with made-up devices: umockdev's library is linked before the C library and shows
// libudev another /sys and other events.
class tst_UdevDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsVideoDevices();
    void followsPlugging();
    void isSilentWithoutDevices();

private:
    QByteArray plug(const char* name, const char* place, const char* product);
    void unplug(const QByteArray& path);

    UMockdevTestbed* m_machine = nullptr;
};

void tst_UdevDevices::init()
{
    m_machine = umockdev_testbed_new();
}

void tst_UdevDevices::cleanup()
{
    g_object_unref(m_machine);
}

void tst_UdevDevices::listsVideoDevices()
{
    plug("video0", "pci-0000:00:14.0-usb-0:5:1.0", "Camera");
    plug("video2", nullptr, nullptr);
    g_free(umockdev_testbed_add_device(m_machine, "input", "event0", nullptr, nullptr, "DEVNAME",
                                       "/dev/input/event0", nullptr));
    Collector collector;
    UdevDevices devices;
    devices.start(collector);
    QCOMPARE(collector.events, 2);
    QCOMPARE(collector.valueOf("/dev/video0", "ID_PATH"),
             QStringLiteral("pci-0000:00:14.0-usb-0:5:1.0"));
    QCOMPARE(collector.valueOf("/dev/video0", "ID_V4L_PRODUCT"), QStringLiteral("Camera"));
    QCOMPARE(collector.valueOf("/dev/video0", "ID_V4L_CAPABILITIES"), QStringLiteral(":capture:"));
    // Without udev's rules there is still the name by the kernel.
    QCOMPARE(collector.valueOf("/dev/video2", "ID_V4L_PRODUCT"), QStringLiteral("Driver's name"));
}

void tst_UdevDevices::followsPlugging()
{
    const QByteArray first = plug("video0", "place", "Camera");
    Collector collector;
    UdevDevices devices;
    devices.start(collector);
    QCOMPARE(collector.found.size(), 1);

    const QByteArray second = plug("video1", "other", "Other");
    QTRY_COMPARE(collector.found.size(), 2);
    QCOMPARE(collector.valueOf("/dev/video1", "ID_PATH"), QStringLiteral("other"));
    unplug(first);
    QTRY_COMPARE(collector.found.keys(), QStringList(QStringLiteral("/dev/video1")));

    umockdev_testbed_set_property(m_machine, second.constData(), "ID_V4L_CAPABILITIES", ":");
    umockdev_testbed_uevent(m_machine, second.constData(), "change");
    QTRY_COMPARE(collector.valueOf("/dev/video1", "ID_V4L_CAPABILITIES"), QStringLiteral(":"));
}

void tst_UdevDevices::isSilentWithoutDevices()
{
    Collector collector;
    UdevDevices devices;
    devices.start(collector);
    QCOMPARE(collector.events, 0);
}

QByteArray tst_UdevDevices::plug(const char* name, const char* place, const char* product)
{
    const QByteArray path = QByteArray("/dev/") + name;
    gchar* attributes[] = {g_strdup("name"), g_strdup("Driver's name"), nullptr};
    QVector<gchar*> properties{g_strdup("DEVNAME"), g_strdup(path.constData())};
    if (product) {
        properties << g_strdup("ID_PATH") << g_strdup(place) << g_strdup("ID_V4L_PRODUCT")
                   << g_strdup(product) << g_strdup("ID_V4L_CAPABILITIES") << g_strdup(":capture:");
    }
    properties << nullptr;
    gchar* const syspath = umockdev_testbed_add_devicev(m_machine, "video4linux", name, nullptr,
                                                        attributes, properties.data());
    const QByteArray result(syspath);
    g_free(syspath);
    for (gchar* text : attributes) {
        g_free(text);
    }
    for (gchar* text : qAsConst(properties)) {
        g_free(text);
    }
    return result;
}

void tst_UdevDevices::unplug(const QByteArray& path)
{
    umockdev_testbed_uevent(m_machine, path.constData(), "remove");
    umockdev_testbed_remove_device(m_machine, path.constData());
}

QTEST_GUILESS_MAIN(tst_UdevDevices)
#include "tst_UdevDevices.moc"
