// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/pipewire/PipeWireCameraTest.h"

#include <QtTest>

using namespace Platform;
using namespace TestSupport;

// Closing a camera leaves nothing behind.
class tst_PipeWireCameraEnd : public PipeWireCameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNothingBehind();
    void leaksNoDescriptorsOnFastRestart_data();
    void leaksNoDescriptorsOnFastRestart();
};

void tst_PipeWireCameraEnd::leavesNothingBehind()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    const QStringList before = openFiles();
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(openFiles().size() > before.size());
    QCOMPARE(camera->output().count("streaming"), 1);
    m_backend->stop();
    QTRY_VERIFY(camera->output().endsWith("paused\n")); // the camera's light is off
    m_backend.reset();
    QTRY_COMPARE(openFiles(), before);
    QTRY_COMPARE(cameraThreads(), 0);
}

void tst_PipeWireCameraEnd::leaksNoDescriptorsOnFastRestart_data()
{
    QTest::addColumn<bool>("isBackendKept");
    QTest::newRow("one backend") << true;
    QTest::newRow("a backend each") << false;
}

// Closes in all phases of a start, so that answers of the server come too late.
void tst_PipeWireCameraEnd::leaksNoDescriptorsOnFastRestart()
{
    QFETCH(bool, isBackendKept);
    constexpr int Rounds = 5;
    constexpr int MaxDelayMs = 10;
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    const QStringList before = openFiles();
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    for (int i = 0; i < Rounds * MaxDelayMs; ++i) {
        m_backend->start();
        QTest::qWait(i % MaxDelayMs);
        m_backend->stop();
        if (!isBackendKept) {
            m_backend.reset();
            m_backend = m_system->createCamera(m_watcher);
            QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
        }
    }
    m_backend->start(); // when this one shows, the earlier ones have ended
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_backend.reset();
    QTRY_COMPARE(cameraThreads(), 0);
    QTRY_COMPARE(openFiles(), before);
}

QTEST_GUILESS_MAIN(tst_PipeWireCameraEnd)
#include "tst_PipeWireCameraEnd.moc"
