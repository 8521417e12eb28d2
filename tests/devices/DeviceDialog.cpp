// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/DeviceDialog.h"

#include "agent/EnvCheckAgent.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/devices/DeviceEngine.h"
#include "tests/support/QuestionAnswerer.h"

#include <QDir>
#include <QPainter>
#include <QTest>
#include <algorithm>

using namespace Platform;

namespace TestSupport {

namespace {

constexpr int WriteTimeoutMs = 8000;
// Well above the limit for gaps: a thread that waits for a frozen server is noticed.
constexpr int FreezeMs = 600;

} // namespace

DeviceDialog::DeviceDialog(const QString& language)
{
    if (!m_translator.load(QCoreApplication::applicationDirPath() + "/translations/envcheck_" +
                           language)) {
        qFatal("there are no texts in %s", qUtf8Printable(language));
    }
    QCoreApplication::installTranslator(&m_translator);
    DeviceEngineConfig config;
    config.settingsFolder = m_folder.path();
    config.cacheFolder = m_folder.path();
    auto engine = std::make_unique<DeviceEngine>(config);
    m_engine = engine.get();
    EngineRegistry::install(std::move(engine));
}

DeviceDialog::~DeviceDialog()
{
    EnvCheckAgent::release();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EngineRegistry::uninstall();
    FileWriter::waitForWritten(WriteTimeoutMs);
}

bool DeviceDialog::run(const Script& script)
{
    bool isDone = false;
    const QuestionAnswerer answerer(QMessageBox::Yes);
    QTimer::singleShot(0, EnvCheckAgent::instance(), [&] {
        m_dialog = qobject_cast<LumCustomNormalDialog*>(QApplication::activeModalWidget());
        if (m_dialog) {
            script();
            isDone = true;
            m_dialog->close();
        }
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    return isDone && !m_dialog;
}

void DeviceDialog::click(const char* name) const
{
    QTest::mouseClick(child<QWidget>(name), Qt::LeftButton);
}

QPixmap DeviceDialog::picture() const
{
    QPixmap result = m_dialog->grab();
    QPainter painter(&result);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window != m_dialog) {
            painter.drawPixmap(window->pos() - m_dialog->pos(), window->grab());
        }
    }
    return result;
}

QString DeviceDialog::screenshot(const QString& name)
{
    const QString folder = QCoreApplication::applicationDirPath() + "/../screenshots/";
    QDir().mkpath(folder);
    return folder + name + QStringLiteral(".png");
}

QJsonObject DeviceDialog::results() const
{
    return m_engine->results();
}

void DeviceDialog::meter(const char* fault, const Script& action)
{
    GapMeter gaps;
    action();
    const qint64 gap = gaps.longestMs();
    qInfo("| %s | longest gap %lld ms |", fault, gap);
    m_worstGapMs = std::max(m_worstGapMs, gap);
}

int DeviceDialog::freezeMs()
{
    return std::max(FreezeMs, qEnvironmentVariableIntValue("ENVCHECK_FREEZE_MS"));
}

} // namespace TestSupport
