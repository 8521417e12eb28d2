// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/DialogStage.h"

#include "agent/EnvCheckAgent.h"
#include "tests/support/SoundServer.h"

#include <CoreEngine/CoreEngine.h>

#include <QDialog>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <cstdio>
#include <utility>

using TestSupport::SoundServer;

namespace {

QWidget* widget(const char* name)
{
    QWidget* found = DialogStage::dialog()
                         ? DialogStage::dialog()->findChild<QWidget*>(QLatin1String(name))
                         : nullptr;
    if (!found) {
        qFatal("The dialog has no %s", name);
    }
    return found;
}

bool waitFor(const std::function<bool()>& condition, const char* what)
{
    const bool isThere = QTest::qWaitFor(condition, DialogStage::TimeoutMs);
    if (!isThere) {
        std::fprintf(stderr, "Waited in vain for %s\n", what);
    }
    return isThere;
}

bool isEnabledSoon(const char* name)
{
    const QWidget* found = widget(name);
    return waitFor([found] { return found->isEnabled(); }, name);
}

bool isListed(SoundServer& server, const char* kind)
{
    return !server.control({QStringLiteral("list"), QStringLiteral("short"), QLatin1String(kind)})
                .isEmpty();
}

} // namespace

bool DialogStage::Application::notify(QObject* receiver, QEvent* event)
{
    if (QThread::currentThread() != thread()) {
        return QApplication::notify(receiver, event);
    }
    if (m_callback && event->type() == QEvent::Paint) {
        m_isPainted = m_isPainted ||
                      qobject_cast<QDialog*>(static_cast<QWidget*>(receiver)->window()) != nullptr;
    }
    ++m_depth;
    const bool isHandled = QApplication::notify(receiver, event);
    --m_depth;
    if (m_depth == 0 && m_isPainted) {
        m_isPainted = false;
        std::exchange(m_callback, {})();
    }
    return isHandled;
}

QDialog* DialogStage::dialog()
{
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

void DialogStage::click(const char* name)
{
    QTest::mouseClick(widget(name), Qt::LeftButton);
}

void DialogStage::settle(int ms)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::qWait(ms);
}

void DialogStage::endSession()
{
    Q_EMIT LumEngine::CoreEngine::instance()->signalKickout();
}

void DialogStage::callLater(const std::function<void()>& function)
{
    QTimer::singleShot(0, LumEngine::CoreEngine::instance(), function);
}

void DialogStage::runDialog(Application& application, const std::function<void()>& script)
{
    application.onceDialogIsPainted([script] {
        callLater([script] {
            script();
            endSession();
        });
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    EnvCheckAgent::release();
    settle(SettleMs);
}

void DialogStage::visitDevicePages()
{
    for (const char* label : {"label_CameraCheck", "label_SoundCheck", "label_MicCheck"}) {
        click(label);
        QCoreApplication::processEvents();
    }
}

bool DialogStage::showCamera()
{
    click("label_CameraCheck");
    return isEnabledSoon("Btn_CanSee"); // enabled by the first frames
}

bool DialogStage::playSound(SoundServer& server)
{
    click("label_SoundCheck");
    if (!isEnabledSoon("tb_play_test_sound")) {
        return false;
    }
    click("tb_play_test_sound");
    return waitFor([&server] { return isListed(server, "sink-inputs"); }, "the test sound");
}

bool DialogStage::record(SoundServer& server)
{
    click("label_MicCheck");
    if (!isEnabledSoon("Btn_Record")) {
        return false;
    }
    click("Btn_Record");
    return waitFor(
        [&server] { return isListed(server, "sink-inputs") && isListed(server, "source-outputs"); },
        "the listener's streams");
}
