// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/flow/ContentPageTest.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"

#include <LumUtility/LumSettings.h>

#include <QTest>

namespace TestSupport {

void ContentPageTest::init()
{
    m_engine = &Platform::ScriptedEngine::install();
    m_frame = new ContentPage(nullptr);
    m_frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_frame));
}

void ContentPageTest::cleanup()
{
    delete m_frame;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(Platform::FileWriter::waitForWritten(5000));
    Platform::EngineRegistry::uninstall();
}

void ContentPageTest::answerAll(bool answer)
{
    for (const char* name : PageNames) {
        finishPage(name, answer);
    }
}

QVector<int> ContentPageTest::postedCodes() const
{
    QVector<int> codes;
    for (const auto& post : m_engine->reports().posts()) {
        codes << post.code;
    }
    return codes;
}

bool ContentPageTest::isSettingWritten() const
{
    return LumSettings::instance(QString())->setting("ShowSystemCheck").isValid();
}

} // namespace TestSupport
