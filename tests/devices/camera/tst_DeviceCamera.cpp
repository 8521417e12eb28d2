// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EndingThreads.h"
#include "platform/backend/SettingsStore.h"
#include "platform/devices/camera/DeviceCamera.h"
#include "platform/devices/camera/FrameSlot.h"
#include "tests/support/MemoryReport.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Platform;

namespace {

constexpr int LongMs = 8000;
const QSize Size(16, 12);

class Watcher final : public CameraBackend::Listener
{
public:
    void cameraListChanged() override {}
    void cameraCauseChanged() override {}
    void currentCameraChanged(const QString&) override {}
    void cameraWorkStateChanged(const QString&, bool works) override { workStates.append(works); }
    void frameArrived() override { ++frames; }

    QList<bool> workStates;
    int frames = 0;
};

// Reports what the test wants.
class Feed final : public CameraFeed
{
public:
    Feed(std::shared_ptr<FrameSlot> slot, std::unique_ptr<Listener> listener)
        : m_slot(std::move(slot)), m_listener(std::move(listener))
    {
    }

    void open(int generation, const QString&) override { m_generation = generation; }
    void close() override {}
    void setOutputSize(const QSize&) override {}

    void plug()
    {
        m_listener->listArrived({{"camera", "Camera"}}, "camera", CameraServer::Answers);
    }
    void tell(DeviceState state) { m_listener->stateChanged(m_generation, state, {}); }
    void show()
    {
        QImage frame(Size, QImage::Format_RGB32);
        frame.fill(Qt::red);
        if (m_slot->put(m_generation, frame, Size)) {
            m_listener->frameArrived();
        }
    }

private:
    std::shared_ptr<FrameSlot> m_slot;
    std::unique_ptr<Listener> m_listener;
    int m_generation = 0;
};

} // namespace

// What holds for every feed.
class tst_DeviceCamera : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // On a busy machine, "working" may arrive when the only frame is too old already.
    void reportsWorkingAfterALateState()
    {
        const QTemporaryDir folder;
        SettingsStore settings(folder.filePath(QStringLiteral("devices.ini")));
        TestSupport::MemoryReport report;
        Watcher watcher;
        Feed* feed = nullptr;
        DeviceCamera camera(
            watcher,
            [&feed](auto slot, auto listener, auto) {
                auto result = std::make_unique<Feed>(std::move(slot), std::move(listener));
                feed = result.get();
                return result;
            },
            std::make_shared<EndingThreads>(), settings, report);
        feed->plug();
        QTRY_COMPARE(camera.currentId(), QStringLiteral("camera"));
        camera.start();
        feed->show();
        QTRY_VERIFY_WITH_TIMEOUT(!camera.delivers(), LongMs);
        feed->tell(DeviceState::Working);
        QTRY_VERIFY(camera.state() == DeviceState::Silent);
        watcher.workStates.clear();
        feed->show();
        QTRY_COMPARE(watcher.workStates, QList<bool>{true});
        QVERIFY(camera.state() == DeviceState::Working);
        feed->show();
        QTRY_COMPARE(watcher.frames, 3);
        QCOMPARE(watcher.workStates.size(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_DeviceCamera)
#include "tst_DeviceCamera.moc"
