// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
// A client that opens the check on scripted devices. With --walk it answers by itself.
#include "agent/EnvCheckAgent.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QAbstractButton>
#include <QApplication>
#include <QJsonDocument>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

namespace {

constexpr int StepMs = 20;
constexpr int GiveUpMs = 30000;
constexpr int WriteTimeoutMs = 5000;

// Clicks whatever leads on; closes the check on its last page.
void goOn()
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog) {
        return;
    }
    const char* const buttons[] = {"Btn_Next", "Btn_Cant", "Btn_CantListen", "Btn_Mic_No"};
    for (const char* name : buttons) {
        auto* button = dialog->findChild<QAbstractButton*>(QLatin1String(name));
        if (button && button->isVisible() && button->isEnabled()) {
            button->click();
            return;
        }
    }
    auto* again = dialog->findChild<QAbstractButton*>(QStringLiteral("redetectButton"));
    if (again && again->isVisible()) {
        dialog->close();
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    QTranslator texts;
    if (!texts.load(QStringLiteral("envcheck_en"), QStringLiteral(DATA_FOLDER "/translations"))) {
        QTextStream(stderr) << "There are no texts in " DATA_FOLDER "/translations\n";
        return 1;
    }
    QCoreApplication::installTranslator(&texts);

    QString error;
    const auto scenario = Platform::Scenario::read(QStringLiteral("no-devices"), &error);
    if (!scenario) {
        QTextStream(stderr) << error << '\n';
        return 1;
    }
    Platform::ScriptedEngine& engine = Platform::ScriptedEngine::install(*scenario);

    QTimer walker;
    bool hasGivenUp = false;
    if (QCoreApplication::arguments().contains(QStringLiteral("--walk"))) {
        QObject::connect(&walker, &QTimer::timeout, &application, goOn);
        walker.start(StepMs);
        QTimer::singleShot(GiveUpMs, &application, [&] {
            hasGivenUp = true;
            engine.facts().breakDown();
        });
    }

    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    EnvCheckAgent::release();

    const QJsonObject results = engine.reports().document().toJson();
    QTextStream(stdout) << QJsonDocument(results).toJson();
    Platform::FileWriter::waitForWritten(WriteTimeoutMs);
    Platform::EngineRegistry::uninstall();
    return hasGivenUp || results.isEmpty() ? 1 : 0;
}
