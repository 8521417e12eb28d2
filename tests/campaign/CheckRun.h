// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Injection.h"
#include "tests/campaign/ReportProof.h"
#include "tests/campaign/Step.h"

#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <memory>

class DeviceRig;
class DialogView;
struct Options;

namespace TestSupport {
class GapMeter;
}

namespace Platform {
class ScriptedEngine;
}

// One check in this process, from the options to the report. A DialogUser clicks through its
// dialog. At its end, it is judged by the rule of the campaign, and the injection hears what
// failed.
class CheckRun
{
public:
    using AtStep = std::function<void(CheckRun& run, Step step)>;

    static constexpr int TruthMs = 500; // so long after the last event, the page must be right

    // rig: the servers of a check on devices; null for scripted devices.
    explicit CheckRun(Injection& injection, DeviceRig* rig = nullptr);
    ~CheckRun();
    CheckRun(const CheckRun&) = delete;
    CheckRun& operator=(const CheckRun&) = delete;

    // scenario: its JSON, or empty for a check on devices.
    void run(const QByteArray& scenario, const AtStep& atStep);
    void useServer(const QString& server) { m_server = server; }
    void useReportUrl(const QString& url) { m_reportUrl = url; }
    // The fault ends the session, so the check need not reach its last page.
    void expectEarlyEnd() { m_endsEarly = true; }

    // For the fault, which is called at a step.
    Injection& injection() const { return m_injection; }
    DeviceRig& rig() const { return *m_rig; }
    Platform::ScriptedEngine& engine() const;
    const DialogView& view() const { return *m_view; }
    void wait(int ms) const; // runs the event loop
    // Runs what takes the test itself long, such as starting servers. Its time doesn't count as a
    // gap of the event loop.
    void unmetered(const std::function<void()>& action);
    // The page must list exactly these devices within TruthMs: their names, in any order.
    void expectDevices(Step step, const QStringList& names);
    void expectDevices(Step step); // the scripted engine's, and the current one
    void expectText(const char* label, const QString& text);

private:
    void noteGaps();
    Options options(const QByteArray& scenario) const;
    QStringList shownDevices(Step step) const;

    Injection& m_injection;
    DeviceRig* m_rig;
    QTemporaryDir m_home;
    QString m_server;
    QString m_reportUrl;
    bool m_endsEarly = false;
    std::unique_ptr<TestSupport::GapMeter> m_gaps; // while the dialog is open
    const DialogView* m_view = nullptr;
    GivenAnswers m_given;
    bool m_hasClosed = false;
};
