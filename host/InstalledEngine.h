// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

#include <QJsonObject>
#include <QString>
#include <functional>

struct Options;

namespace Platform {
class Engine;
}

// The engine that the options ask for, installed while this lives. GUI thread only.
class InstalledEngine
{
public:
    // Settings, journal and outbox go into the folder.
    InstalledEngine(const Options& options, const QString& dataFolder);
    ~InstalledEngine();
    InstalledEngine(const InstalledEngine&) = delete;
    InstalledEngine& operator=(const InstalledEngine&) = delete;

    // Empty, or one line that says why there is none; then nothing else may be called.
    QString error() const { return m_error; }
    ExitCode errorCode() const { return m_errorCode; }

    // Gathers the slow facts; runs the event loop, for a second at most.
    void prepare();
    Platform::Engine& engine() const;
    QJsonObject results() const; // of the run so far

private:
    void installScripted(const Options& options);
    void installDevices(const Options& options, const QString& dataFolder);
    void fail(const QString& error, ExitCode code);

    QString m_error;
    ExitCode m_errorCode = ExitCode::AllPassed;
    std::function<void(std::function<void()>)> m_prepare; // null where there is nothing to gather
    std::function<QJsonObject()> m_results;
};
