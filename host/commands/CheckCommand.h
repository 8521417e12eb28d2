// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"
#include "host/Options.h"
#include "host/report/Redaction.h"
#include "host/report/Report.h"

#include <memory>
#include <optional>

class Tour;
struct RunOutcome;

namespace Platform {
class Engine;
}

// The command without a name: opens the check, then prints its result and writes the report. GUI
// thread only.
class CheckCommand
{
public:
    explicit CheckCommand(const Options& options);

    // Returns when the dialog is closed, the files are written, and the user has seen the outcome.
    ExitCode run(const QString& language);

    // Whether a window with the outcome is opened after a run that ended so.
    static bool opensWindow(const Options& options, const RunOutcome& outcome);

    // Why what is named can't be written; empty if nothing is, or standard output.
    static QString problemOfWritingTo(const QString& place);
    // Writes into a file, or to standard output. Returns one line if it can't be written.
    static QString writeTo(const QString& place, const QByteArray& content);

private:
    bool isTour() const { return !m_options.tourFolder.isEmpty(); }
    bool prepareFiles();
    bool prepareTour();
    bool prepareRedaction();
    ExitCode open(const QString& language);
    void print(const QString& text) const;
    bool write(const Report& report) const;
    void remember(const Report& report, bool isWritten) const;
    bool writeResults(const QJsonObject& results) const;
    std::unique_ptr<Tour> startTour(Platform::Engine& engine) const; // null without --tour
    ExitCode endTour(Tour& tour, const QString& language, ExitCode outcome) const;

    Options m_options;
    QString m_reportFile;
    std::optional<Redaction> m_redaction;
};
