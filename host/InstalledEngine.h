// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"
#include "host/Options.h"
#include "host/report/ReportUpload.h"

#include <QJsonObject>
#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>

namespace Platform {
class Engine;
}

// Creates the engine that the options ask for, and installs it while this object lives. GUI thread
// only.
class InstalledEngine
{
public:
    // Settings, journal and outbox go into the folder.
    InstalledEngine(const Options& options, const QString& dataFolder);
    ~InstalledEngine();
    InstalledEngine(const InstalledEngine&) = delete;
    InstalledEngine& operator=(const InstalledEngine&) = delete;

    // Empty, or one line that says why there is no engine; then call nothing else.
    QString error() const { return m_error; }
    ExitCode errorCode() const { return m_errorCode; }

    // Collects the slow facts; runs the event loop for a second at most. False if the program was
    // asked to end meanwhile.
    bool prepare();
    Platform::Engine& engine() const;
    QJsonObject results() const; // of the run so far
    // Posts the report of the run, if there is an address to post to. For the end of the program:
    // waits for the disk.
    void post(const Report& report) const;

private:
    QString settingsFolder(const Options& options, const QString& dataFolder);
    void installScripted(const Options& options);
    void installDevices(const Options& options, const QString& dataFolder);
    void fail(const QString& error, ExitCode code);

    QString m_error;
    ExitCode m_errorCode = ExitCode::AllPassed;
    std::function<void(std::function<void()>)> m_prepare; // null if there is nothing to collect
    std::function<QJsonObject()> m_results;
    std::function<void(const QByteArray&)> m_post; // null if nothing is posted
    ReportUpload::Deliver m_deliver;               // likewise
    const Options m_options;
    std::unique_ptr<QTemporaryDir> m_unusedSettings; // removed after the engine
};
