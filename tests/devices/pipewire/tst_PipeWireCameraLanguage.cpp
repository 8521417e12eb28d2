// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/pipewire/PipeWireCameraTest.h"
#include "tests/support/TestProcess.h"

#include <QtTest>
#include <cerrno>

using namespace Platform;
using namespace TestSupport;

// A server that speaks German, with the words of a newer session manager.
class tst_PipeWireCameraLanguage : public PipeWireCameraTest
{
    Q_OBJECT

protected:
    PipeWireServer::Habits serverHabits() const override
    {
        return {QStringLiteral("de"), "target not found"};
    }

private Q_SLOTS:
    void knowsTheCause_data();
    void knowsTheCause();
    void waitsForACameraThatIsNotThereYet();
};

void tst_PipeWireCameraLanguage::knowsTheCause_data()
{
    addErrors();
}

void tst_PipeWireCameraLanguage::knowsTheCause()
{
    QFETCH(int, error);
    QFETCH(QString, expected);
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    failAndReopen(*camera, error);
    QTRY_COMPARE(stateName(), expected);
    QCOMPARE(toString(m_backend->cause().kind), expected);
}

// The session manager doesn't give us a camera that another program has for itself.
void tst_PipeWireCameraLanguage::waitsForACameraThatIsNotThereYet()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    auto reader = std::make_unique<TestProcess>();
    reader->start(QCoreApplication::applicationDirPath() + QStringLiteral("/camera_reader"),
                  {NameA, QStringLiteral("Meeting")});
    QTRY_VERIFY_WITH_TIMEOUT(camera->output().contains("streaming"), LongMs);
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(stateName() != QStringLiteral("ready"), LongMs);
    QCOMPARE(stateName(), QStringLiteral("busy"));
    reader->kill();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

QTEST_GUILESS_MAIN(tst_PipeWireCameraLanguage)
#include "tst_PipeWireCameraLanguage.moc"
