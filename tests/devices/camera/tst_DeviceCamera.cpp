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
    void tell(CameraServer server) { m_listener->listArrived({}, {}, server); }
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

Q_DECLARE_METATYPE(Platform::CameraServer)
Q_DECLARE_METATYPE(Platform::CameraCause::Kind)
Q_DECLARE_METATYPE(Platform::SoundServerState)

// What holds for every feed.
class tst_DeviceCamera : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void reportsWorkingAfterALateState();
    void saysWhyThereAreNoCameras_data();
    void saysWhyThereAreNoCameras();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SettingsStore> m_settings;
    TestSupport::MemoryReport m_report;
    Watcher m_watcher;
    Feed* m_feed = nullptr;
    std::unique_ptr<DeviceCamera> m_camera;
};

void tst_DeviceCamera::init()
{
    m_camera.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<SettingsStore>(m_folder->filePath(QStringLiteral("devices.ini")));
    m_watcher = Watcher();
    const auto makeFeed = [this](auto slot, auto listener, auto) {
        auto result = std::make_unique<Feed>(std::move(slot), std::move(listener));
        m_feed = result.get();
        return result;
    };
    m_camera = std::make_unique<DeviceCamera>(
        m_watcher, makeFeed, std::make_shared<EndingThreads>(), *m_settings, m_report);
}

// On a busy machine, "working" may arrive when the only frame is too old already.
void tst_DeviceCamera::reportsWorkingAfterALateState()
{
    m_feed->plug();
    QTRY_COMPARE(m_camera->currentId(), QStringLiteral("camera"));
    m_camera->start();
    m_feed->show();
    QTRY_VERIFY_WITH_TIMEOUT(!m_camera->delivers(), LongMs);
    m_feed->tell(DeviceState::Working);
    QTRY_VERIFY(m_camera->state() == DeviceState::Silent);
    m_watcher.workStates.clear();
    m_feed->show();
    QTRY_COMPARE(m_watcher.workStates, QList<bool>{true});
    QVERIFY(m_camera->state() == DeviceState::Working);
    m_feed->show();
    QTRY_COMPARE(m_watcher.frames, 3);
    QCOMPARE(m_watcher.workStates.size(), 1);
}

void tst_DeviceCamera::saysWhyThereAreNoCameras_data()
{
    using Kind = CameraCause::Kind;
    QTest::addColumn<CameraServer>("server");
    QTest::addColumn<Kind>("cause");
    QTest::addColumn<SoundServerState>("serverState");
    QTest::addColumn<QString>("recorded");
    QTest::newRow("none is there") << CameraServer::Answers << Kind::Absent
                                   << SoundServerState::Running << QStringLiteral("absent");
    QTest::newRow("denied") << CameraServer::Denies << Kind::Denied << SoundServerState::Running
                            << QStringLiteral("denied");
    QTest::newRow("lost") << CameraServer::Lost << Kind::ServerLost << SoundServerState::Lost
                          << QStringLiteral("absent");
    QTest::newRow("not built") << CameraServer::NotBuilt << Kind::NotBuilt
                               << SoundServerState::NotBuilt << QStringLiteral("notBuilt");
}

void tst_DeviceCamera::saysWhyThereAreNoCameras()
{
    QFETCH(CameraServer, server);
    QFETCH(CameraCause::Kind, cause);
    QFETCH(SoundServerState, serverState);
    m_feed->tell(server);
    QTRY_VERIFY(m_camera->serverState() == serverState);
    QVERIFY(m_camera->cause().kind == CameraCause::Kind::None); // nobody asked for a picture
    m_camera->start();
    QTRY_VERIFY(m_camera->cause().kind == cause);
    m_camera->stop();
    QVERIFY(m_camera->cause().kind == CameraCause::Kind::None);
    QTEST(m_report.measurements.value(QStringLiteral("camera"))
              .value(QLatin1String("state"))
              .toString(),
          "recorded");
}

QTEST_GUILESS_MAIN(tst_DeviceCamera)
#include "tst_DeviceCamera.moc"
