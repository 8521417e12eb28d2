// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EngineRegistry.h"
#include "tests/platform/scripted/CameraListener.h"
#include "tests/platform/scripted/ScriptedTest.h"

#include <QtTest>

#include <utility>

using namespace Platform;
using TestSupport::CameraListener;

namespace {

const QString First = QStringLiteral("first");

class FactsListener : public SystemFacts::Listener
{
public:
    void userInfoArrived() override { m_heard.append(QStringLiteral("user")); }
    void sessionBrokeDown() override { m_heard.append(QStringLiteral("broken")); }
    void userKickedOut() override { m_heard.append(QStringLiteral("out")); }
    QStringList take() { return std::exchange(m_heard, {}); }

private:
    QStringList m_heard;
};

} // namespace

class tst_ScriptedEngine : public TestSupport::ScriptedTest
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfTheSession();
    void logsCallsInOrder();
    void keepsTheLogBounded();
    void keepsSettingsToItself();
};

void tst_ScriptedEngine::tellsOfTheSession()
{
    ScriptedFacts& facts = m_engine->facts();
    facts.kickOut(); // nobody listens
    QCoreApplication::processEvents();
    FactsListener listener;
    facts.setListener(&listener);
    facts.refreshUserInfo();
    facts.bringUserInfo(QStringLiteral("account"), QStringLiteral("nick"));
    facts.breakDown();
    facts.kickOut();
    QVERIFY(listener.take().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), (QStringList{QStringLiteral("user"), QStringLiteral("broken"),
                                           QStringLiteral("out")}));
    QCOMPARE(facts.accountName(), QStringLiteral("account"));
    QCOMPARE(facts.nickName(), QStringLiteral("nick"));
    facts.breakDown();
    facts.setListener(nullptr);
    QCoreApplication::processEvents();
    QVERIFY(listener.take().isEmpty());
}

void tst_ScriptedEngine::logsCallsInOrder()
{
    CameraListener listener;
    {
        const auto camera = m_engine->createCamera(listener);
        QVERIFY(camera->devices().empty());
        camera->setOutputSize(QSize(306, 172));
        camera->setCurrent(First);
        camera->start();
        QVERIFY(!camera->delivers());
        camera->stop();
    }
    m_engine->reportSink().recordResult(QStringLiteral("camera.userState"), 1);
    m_engine->reportSink().postCode(QStringLiteral("ContentPage::closeEvent"), 3);
    const QStringList commands = {QStringLiteral("camera.create()"),
                                  QStringLiteral("camera.setOutputSize(306x172)"),
                                  QStringLiteral("camera.setCurrent(first)"),
                                  QStringLiteral("camera.start()"),
                                  QStringLiteral("camera.stop()"),
                                  QStringLiteral("camera.destroy()"),
                                  QStringLiteral("report.result(camera.userState=1)"),
                                  QStringLiteral("report.post(ContentPage::closeEvent,3)")};
    QCOMPARE(m_engine->commands(), commands);
    QStringList calls = commands;
    calls.insert(1, QStringLiteral("camera.devices()"));
    calls.insert(5, QStringLiteral("camera.delivers()"));
    QCOMPARE(m_engine->calls(), calls);
    m_engine->clearCalls();
    QVERIFY(m_engine->calls().isEmpty());
}

void tst_ScriptedEngine::keepsTheLogBounded()
{
    for (std::size_t i = 0; i < CallLog::MaxEntries + 5; ++i) {
        m_engine->speakers();
    }
    m_engine->facts().refreshUserInfo();
    QCOMPARE(m_engine->calls().size(), int(CallLog::MaxEntries));
    QCOMPARE(m_engine->calls().constLast(), QStringLiteral("facts.refreshUserInfo()"));
}

void tst_ScriptedEngine::keepsSettingsToItself()
{
    const QString folder = m_engine->settingsFolder();
    QVERIFY(QFileInfo(folder).isDir());
    QVERIFY(folder.startsWith(QDir::tempPath()));
    m_engine.reset();
    QVERIFY(!QFileInfo::exists(folder));

    m_engine = std::make_unique<ScriptedEngine>();
    m_engine->setSettingsFolder(QStringLiteral("/some/where"));
    QCOMPARE(m_engine->settingsFolder(), QStringLiteral("/some/where"));

    const ScriptedEngine& installed = ScriptedEngine::install();
    QCOMPARE(&EngineRegistry::engine(), &installed);
    EngineRegistry::uninstall();
}

QTEST_MAIN(tst_ScriptedEngine)
#include "tst_ScriptedEngine.moc"
