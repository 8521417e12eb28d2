// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/CheckRun.h"

#include "host/Folders.h"
#include "host/Options.h"
#include "host/commands/CheckCommand.h"
#include "host/tour/DialogView.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/campaign/DialogUser.h"
#include "tests/support/GapMeter.h"

#include <CommEngine/HardwareMgrInterface.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QtTest>

#include <memory>

using Platform::ScriptedDevices;
using Platform::ScriptedEngine;

namespace {

constexpr int WriteTimeoutMs = 5000;

const char* boxOf(Step step)
{
    switch (step) {
    case Step::Camera:
        return "cb_vd_name";
    case Step::Speaker:
        return "cb_ad_output_name";
    case Step::Microphone:
        return "cb_ad_input_name";
    case Step::Network:
    case Step::Result:
        break;
    }
    return nullptr;
}

const ScriptedDevices* devicesOf(ScriptedEngine& engine, Step step)
{
    switch (step) {
    case Step::Camera:
        return &engine.cameras();
    case Step::Speaker:
        return &engine.scriptedSpeakers();
    case Step::Microphone:
        return &engine.microphones();
    case Step::Network:
    case Step::Result:
        break;
    }
    return nullptr;
}

} // namespace

CheckRun::CheckRun(Injection& injection, DeviceRig* rig) : m_injection(injection), m_rig(rig)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
}

CheckRun::~CheckRun()
{
    qunsetenv("XDG_DATA_HOME");
}

Options CheckRun::options(const QByteArray& scenario) const
{
    Options result;
    result.platform = Options::Platform::Devices;
    result.server = m_server;
    result.reportUrl = m_reportUrl;
    result.reportFile = m_home.filePath(QStringLiteral("report.json"));
    result.resultsFile = m_home.filePath(QStringLiteral("results.json"));
    if (!scenario.isEmpty()) {
        QFile file(m_home.filePath(QStringLiteral("scenario.json")));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(scenario);
        }
        result.platform = Options::Platform::Scripted;
        result.scenario = file.fileName();
    }
    return result;
}

void CheckRun::run(const QByteArray& scenario, const AtStep& atStep)
{
    const Options chosen = options(scenario);
    const auto visit = [&](Step step, const DialogView& view) {
        if (!m_gaps) {
            m_gaps = std::make_unique<TestSupport::GapMeter>();
        }
        m_view = &view;
        atStep(*this, step);
        if (step == Step::Result) {
            noteGaps();
            m_hasClosed = true;
        }
    };
    const auto keep = [this](const char* check, const char* answer) {
        m_given[QLatin1String(check)] = QLatin1String(answer);
    };
    const DialogUser user(visit, keep);
    CheckCommand(chosen).run(QStringLiteral("en"));
    m_injection.require(Platform::FileWriter::waitForWritten(WriteTimeoutMs),
                        QStringLiteral("files aren't written in time"));
    m_injection.require(user.problem().isEmpty(), user.problem());
    m_injection.require(m_hasClosed || m_endsEarly, QStringLiteral("the check ended early"));
    const QString report = ReportProof::problemOfReport(chosen.reportFile, m_given);
    m_injection.require(report.isEmpty(), report);
    const QString history = ReportProof::problemOfHistory(Folders::runs(), chosen.reportFile);
    m_injection.require(history.isEmpty(), history);
}

ScriptedEngine& CheckRun::engine() const
{
    return dynamic_cast<ScriptedEngine&>(Platform::EngineRegistry::engine());
}

void CheckRun::wait(int ms) const
{
    QTest::qWait(ms);
}

void CheckRun::noteGaps()
{
    m_injection.noteGaps(m_gaps->count());
}

void CheckRun::unmetered(const std::function<void()>& action)
{
    noteGaps();
    action();
    m_gaps = std::make_unique<TestSupport::GapMeter>();
}

QStringList CheckRun::shownDevices(Step step) const
{
    QStringList names;
    const auto* const box = m_view->dialog()->findChild<QComboBox*>(QLatin1String(boxOf(step)));
    for (int i = 0; box && i < box->count(); ++i) {
        if (box->itemData(i).toString() != HardwareMgrInterface::NoneDevice) {
            names << box->itemText(i);
        }
    }
    names.sort();
    return names;
}

void CheckRun::expectDevices(Step step, const QStringList& names)
{
    QStringList expected = names;
    expected.sort();
    if (!boxOf(step) || !m_view->dialog()) {
        return;
    }
    const bool isTrue = QTest::qWaitFor([&] { return shownDevices(step) == expected; }, TruthMs);
    const QStringList shown = shownDevices(step);
    m_injection.require(isTrue, QStringLiteral("step %1 shows \"%2\" instead of \"%3\"")
                                    .arg(QString::number(static_cast<int>(step)),
                                         shown.mid(0, 5).join(QStringLiteral(", ")),
                                         expected.mid(0, 5).join(QStringLiteral(", "))));
}

void CheckRun::expectDevices(Step step)
{
    const ScriptedDevices* const devices = devicesOf(engine(), step);
    if (!devices) {
        return;
    }
    QStringList names;
    for (const Platform::DeviceInfo& device : devices->devices()) {
        names << device.name;
    }
    expectDevices(step, names);
    const auto* const box = m_view->dialog()->findChild<QComboBox*>(QLatin1String(boxOf(step)));
    const QString id = devices->currentId();
    const bool isThere = devices->stateOf(id) != Platform::DeviceState::Absent;
    m_injection.require(!isThere || box->currentData().toString() == id,
                        QStringLiteral("another device is shown as chosen than ") + id);
}

void CheckRun::expectText(const char* label, const QString& text)
{
    const auto* const shown = m_view->dialog()->findChild<QLabel*>(QLatin1String(label));
    const bool isTrue = QTest::qWaitFor([&] { return shown->text() == text; }, TruthMs);
    m_injection.require(
        isTrue, QStringLiteral("the page says \"%1\" instead of \"%2\"").arg(shown->text(), text));
}
