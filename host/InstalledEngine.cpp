// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/InstalledEngine.h"

#include "host/Options.h"
#include "host/ProgramEnd.h"
#include "host/TerminationSignals.h"
#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/scripted/ScriptedEngine.h"
#ifdef ENVCHECK_WITH_DEVICES
#include "platform/devices/DeviceEngine.h"
#endif

#include <QEventLoop>

#include <algorithm>
#include <memory>

namespace {

QString cdnFirstPart(const Options& options)
{
    return options.cdn.section(QLatin1Char('/'), 0, 0);
}

QString cdnSecondPart(const Options& options)
{
    return options.cdn.section(QLatin1Char('/'), 1);
}

// The file to which the results are written after each change. Empty if they are written only once,
// at the end, because they are redacted or printed.
QString runningResults(const Options& options)
{
    const bool isPlainFile =
        options.redaction == Options::Redaction::None && options.resultsFile != Options::Output;
    return isPlainFile ? options.resultsFile : QString();
}

// Options of the command line replace the values of the scenario.
void useTexts(const Options& options, Platform::ScriptedFacts& facts)
{
    Platform::ScriptedFacts::Values values = facts.values();
    if (!options.account.isEmpty()) {
        values.accountName = options.account;
    }
    if (!options.nickname.isEmpty()) {
        values.nickName = options.nickname;
    }
    if (!options.cdn.isEmpty()) {
        values.cdnFirstPart = cdnFirstPart(options);
        values.cdnSecondPart = cdnSecondPart(options);
    }
    facts.setValues(values);
}

} // namespace

InstalledEngine::InstalledEngine(const Options& options, const QString& dataFolder)
    : m_options(options)
{
    if (options.platform == Options::Platform::Scripted) {
        installScripted(options);
    } else {
        installDevices(options, dataFolder);
    }
}

InstalledEngine::~InstalledEngine()
{
    ProgramEnd::begin();
    if (m_results) { // an engine is installed
        const std::chrono::milliseconds limit(
            std::min(ProgramEnd::DeliveryMs, ProgramEnd::remainingMs()));
        if (m_deliver) {
            ReportUpload::finish(m_deliver, m_options.reportUrl, limit);
        } else {
            engine().deliver(limit);
        }
    }
    // Write first: the scripted engine removes the folder of its settings.
    Platform::FileWriter::waitForWritten(ProgramEnd::remainingMs());
    Platform::EngineRegistry::uninstall();
}

bool InstalledEngine::prepare()
{
    if (!m_prepare) {
        return true;
    }
    // Shared: if the program is asked to end, the loop ends before the facts are there.
    struct Wait
    {
        QEventLoop loop;
        bool isDone = false;
    };
    const auto wait = std::make_shared<Wait>();
    m_prepare([wait] {
        wait->isDone = true;
        wait->loop.quit();
    });
    wait->loop.exec();
    // A signal at the last moment ended only this loop. The next one must not even begin.
    return wait->isDone && !TerminationSignals::haveArrived();
}

Platform::Engine& InstalledEngine::engine() const
{
    return Platform::EngineRegistry::engine();
}

QJsonObject InstalledEngine::results() const
{
    return m_results();
}

void InstalledEngine::post(const Report& report) const
{
    if (m_post) {
        m_post(ReportUpload::documentOf(report, m_options));
    }
}

// Without a person nothing is chosen that could be remembered.
QString InstalledEngine::settingsFolder(const Options& options, const QString& dataFolder)
{
    if (!options.isUnattended) {
        return dataFolder;
    }
    m_unusedSettings = std::make_unique<QTemporaryDir>();
    return m_unusedSettings->path();
}

void InstalledEngine::installScripted(const Options& options)
{
    QString error;
    const std::optional<Platform::Scenario> scenario =
        Platform::Scenario::read(options.scenario, &error);
    if (!scenario) {
        fail(error, ExitCode::BadInput);
        return;
    }
    Platform::ScriptedEngine& engine = Platform::ScriptedEngine::install(*scenario);
    useTexts(options, engine.facts());
    engine.reports().document().setPath(runningResults(options));
    m_results = [&engine] { return engine.reports().document().toJson(); };
}

#ifdef ENVCHECK_WITH_DEVICES
void InstalledEngine::installDevices(const Options& options, const QString& dataFolder)
{
    Platform::DeviceEngineConfig config;
    config.server = options.server;
    config.cdnFirstPart = cdnFirstPart(options);
    config.cdnSecondPart = cdnSecondPart(options);
    config.account = options.account;
    config.nickname = options.nickname;
    config.resultsPath = runningResults(options);
    config.reportUrl = options.reportUrl;
    config.reportToken = options.reportToken;
    config.reportsFolder = dataFolder + QStringLiteral("/reports");
    config.isProcessOwn = true;
    config.settingsFolder = settingsFolder(options, dataFolder);
    config.cacheFolder = dataFolder;
    auto made = std::make_unique<Platform::DeviceEngine>(config);
    Platform::DeviceEngine& engine = *made;
    Platform::EngineRegistry::install(std::move(made));
    m_prepare = [&engine](std::function<void()> done) { engine.prepare(std::move(done)); };
    m_results = [&engine] { return engine.results(); };
    if (!options.reportUrl.isEmpty()) {
        m_post = [&engine](const QByteArray& report) {
            engine.postReport(report, std::chrono::milliseconds(ProgramEnd::remainingMs()));
        };
        m_deliver = [&engine](std::chrono::milliseconds limit) {
            return engine.deliverReports(limit);
        };
    }
}
#else
void InstalledEngine::installDevices(const Options&, const QString&)
{
    fail(qtTrId("ID_Host_Devices_NotBuilt"), ExitCode::Unavailable);
}
#endif

void InstalledEngine::fail(const QString& error, ExitCode code)
{
    m_error = error;
    m_errorCode = code;
}
