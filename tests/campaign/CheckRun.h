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

// One check of this process, from the options to the report, which a DialogUser walks through. It
// judges itself by the rule of the campaign, and tells the injection what failed.
class CheckRun
{
public:
    using AtStep = std::function<void(CheckRun& run, Step step)>;

    static constexpr int TruthMs = 500; // after the last event, the page shows what is so

    // rig: of a check on devices; else null.
    explicit CheckRun(Injection& injection, DeviceRig* rig = nullptr);
    ~CheckRun();
    CheckRun(const CheckRun&) = delete;
    CheckRun& operator=(const CheckRun&) = delete;

    // A scenario's JSON; empty: the devices of the machine.
    void run(const QByteArray& scenario, const AtStep& atStep);
    void useServer(const QString& server) { m_server = server; }
    void useReportUrl(const QString& url) { m_reportUrl = url; }
    // The engine ends the session: a report is all that is expected.
    void expectEarlyEnd() { m_endsEarly = true; }

    // For the hook.
    Injection& injection() const { return m_injection; }
    DeviceRig& rig() const { return *m_rig; }
    Platform::ScriptedEngine& engine() const;
    const DialogView& view() const { return *m_view; }
    void wait(int ms) const; // the event loop goes on
    // What the test itself does for long: starting servers, for instance.
    void unmetered(const std::function<void()>& action);
    // Within TruthMs, the page has these devices in its list, by name, in any order, and nothing
    // else.
    void expectDevices(Step step, const QStringList& names);
    void expectDevices(Step step); // those of the scripted engine, and its choice
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
