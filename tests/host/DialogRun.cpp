// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "DialogRun.h"

#include "CapturedOutput.h"
#include "host/SoundNames.h"
#include "host/commands/CheckCommand.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QTableWidget>
#include <QtTest>

using Platform::ScriptedEngine;

namespace {

const char* const LabelNames[] = {"label_SystemCheck", "label_CameraCheck", "label_SoundCheck",
                                  "label_MicCheck"};
const QColor Green("#009265");
const QColor Red("#FF4A27");

// One device of each kind, which needs no time to work.
const char* const Scenario = R"({
    "base": "all-well",
    "cameras": [ { "id": "camera-1", "name": "Front camera", "state": "working" } ],
    "microphones": [ { "id": "microphone-1", "name": "Headset microphone", "state": "working" } ],
    "speakers": [ { "id": "speaker-1", "name": "Headset", "volume": 60 } ],
    "network": [ { "delayMs": 37, "lossPercent": 1, "jitterMs": 2 } ]
})";

QString id(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace

DialogRun::DialogRun()
{
    qputenv("XDG_DATA_HOME", m_home.path().toUtf8());
}

DialogRun::~DialogRun()
{
    qunsetenv("XDG_DATA_HOME");
}

ScriptedEngine& DialogRun::engine() const
{
    return dynamic_cast<ScriptedEngine&>(Platform::EngineRegistry::engine());
}

void DialogRun::click(const char* name) const
{
    auto* const widget = m_view->find<QWidget>(name);
    QVERIFY2(widget, name);
    QTRY_VERIFY2(widget->isEnabled(), name);
    QTest::mouseClick(widget, Qt::LeftButton);
}

void DialogRun::passNetwork()
{
    const auto* const delay = m_view->find<QLabel>("label_ND");
    QVERIFY(delay);
    QTRY_COMPARE(delay->text(), id("37ms"));
    look();
    click("Btn_Next");
}

void DialogRun::passCamera()
{
    click("Btn_CanSee");
}

void DialogRun::playAndPick()
{
    click("tb_play_test_sound");
    const QStringList played = engine().scriptedSpeakers().playedFiles();
    QVERIFY(!played.isEmpty());
    engine().scriptedSpeakers().finishPlayback();
    const QString right = qtTrId(SoundNames::textId(QFileInfo(played.last()).completeBaseName()));
    for (const char* name : {"item0", "item1", "item2", "item3"}) {
        const auto* const button = m_view->find<QAbstractButton>(name);
        if (button && button->text() == right) {
            click(name);
        }
    }
}

void DialogRun::passSpeaker()
{
    playAndPick();
    click("Btn_CanHear");
}

void DialogRun::passMicrophone()
{
    click("Btn_Mic_Yes");
}

void DialogRun::measure(int delayMs, int lossPercent)
{
    Platform::NetworkFigures figures;
    figures.delayMs = delayMs;
    figures.lossPercent = lossPercent;
    figures.sent = 50;
    figures.answered = 50 - lossPercent / 2;
    engine().network().setFigures(figures);
    QCoreApplication::processEvents();
    if (const auto* const delay = m_view->find<QLabel>("label_ND")) {
        QTRY_COMPARE(delay->text(), QStringLiteral("%1ms").arg(delayMs));
    }
}

void DialogRun::run(const Steps& steps)
{
    QFile scenario(m_home.filePath(id("scenario.json")));
    QVERIFY(scenario.open(QIODevice::WriteOnly));
    scenario.write(Scenario);
    scenario.close();
    Options options;
    options.platform = Options::Platform::Scripted;
    options.scenario = scenario.fileName();
    options.reportFile = m_home.filePath(id("report.json"));
    bool isThrough = false;
    QTimer opening;
    QObject::connect(&opening, &QTimer::timeout, &opening, [&] {
        QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible()) {
            opening.stop();
            m_view = std::make_unique<DialogView>(dialog);
            visit(steps);
            isThrough = !QTest::currentTestFailed();
            if (dialog && dialog->isVisible()) {
                dialog->done(QDialog::Rejected);
            }
        }
    });
    opening.start(5);
    CapturedOutput output(m_home.filePath(id("terminal.txt")));
    m_code = static_cast<int>(CheckCommand(options).run(id("en")));
    QVERIFY(Platform::FileWriter::waitForWritten(5000));
    const QString printed = output.text();
    QVERIFY2(isThrough, qPrintable(printed));
    // Behind what this test itself says.
    m_terminal = printed.split(QLatin1Char('\n'));
    while (!m_terminal.isEmpty() && !m_terminal.first().startsWith(id("System "))) {
        m_terminal.removeFirst();
    }
    QVERIFY2(m_terminal.size() > 4, qPrintable(printed));
    QFile report(options.reportFile);
    QVERIFY(report.open(QIODevice::ReadOnly));
    m_report = QJsonDocument::fromJson(report.readAll()).object();
}

void DialogRun::visit(const Steps& steps)
{
    for (const Step& step : steps) {
        step(*this);
        if (QTest::currentTestFailed() || !m_view->dialog() || !m_view->dialog()->isVisible()) {
            return;
        }
        look();
    }
}

void DialogRun::look()
{
    if (const auto* table = m_view->find<QTableWidget>("tableWidget")) {
        lookAtTable(*table);
        return;
    }
    lookAtLabels();
    const auto* delay = m_view->find<QLabel>("label_ND");
    const auto* loss = m_view->find<QLabel>("label_LR");
    if (delay && loss && delay->text() != id("- -")) {
        const auto isGreen = [](const QLabel& label) {
            return label.palette().color(QPalette::WindowText) == Green;
        };
        m_shown[id("network")] = isGreen(*delay) && isGreen(*loss) ? id("passed") : id("failed");
    }
}

void DialogRun::lookAtTable(const QTableWidget& table)
{
    for (int row = 0; row < 4; ++row) {
        const auto text = [&table, row](int column) {
            return qobject_cast<QLabel*>(table.cellWidget(row, column))->text();
        };
        m_shown[id(CheckKeys[row])] = text(2) == qtTrId("ID_CheckResultPage_Normal") ? id("passed")
                                      : text(1) == qtTrId("ID_CameraPage_NotDetected")
                                          ? id("notTested")
                                          : id("failed");
    }
}

// Red is also what wasn't answered; only the table tells the two apart.
void DialogRun::lookAtLabels()
{
    for (int i = 0; i < 4; ++i) {
        const auto* const label = m_view->find<QWidget>(LabelNames[i]);
        const QColor color = label->palette().color(QPalette::WindowText);
        if (color == Green) {
            m_shown[id(CheckKeys[i])] = id("passed");
        } else if (color == Red) {
            m_shown[id(CheckKeys[i])] = id("red");
        }
    }
}

QJsonObject DialogRun::check(const char* key) const
{
    const QJsonArray checks = m_report.value(id("checks")).toArray();
    for (const QJsonValue& each : checks) {
        if (each[id("check")] == id(key)) {
            return each.toObject();
        }
    }
    return {};
}

QString DialogRun::figure(const QJsonObject& check, const char* list, const char* key)
{
    const QJsonArray figures = check.value(id(list)).toArray();
    for (const QJsonValue& each : figures) {
        if (each[id("key")] == id(key)) {
            return each[id("value")].toVariant().toString();
        }
    }
    return id("none");
}
