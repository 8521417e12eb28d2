// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The values of the command line.
struct Options
{
    static inline const QLatin1String Output = QLatin1String("-"); // in place of a file
    static constexpr const char* DefaultScenario = "all-well";     // of the scripted devices

    enum class Command { Check, Devices, Network, Serve, Report, History, Version, Help };
    enum class Platform { Devices, Scripted };
    enum class Format { Text, Html, Json, Room, Csv, Lines, Map };
    enum class Redaction { None, Personal, Hash };

    Command command = Command::Check;
    Platform platform = Platform::Devices;
    QString scenario; // a file or the name of a bundled one
    QString language; // empty: the system's
    QString server;   // Platform::StunServer reads it; empty: none is named here
    QString account;
    QString nickname;
    QString cdn;           // "FIRST/SECOND"
    QString resultsFile;   // "-" is standard output
    QString reportFile;    // empty: the default place
    QString diagnosisFile; // an archive; empty: none
    QString reportUrl;
    QString reportTokenFile;
    QByteArray reportToken; // never from the command line, see ReportToken
    QString tourFolder;
    bool isVerbose = false;
    bool isQuiet = false;      // no window with the outcome
    bool isUnattended = false; // the check: without a window, and without a person
    bool hasLoop = false;      // with a sweep on the speaker

    bool isJson = false; // devices, network, history
    int count = 0;       // network: how many figures; 0 means no limit
    quint16 port = 0;    // serve
    QStringList files;   // report; "-" is standard input
    QString filesFrom;   // report: a file with names of reports, or "-"
    Format format = Format::Text;
    Redaction redaction = Redaction::None;
    bool isRedactionGiven = false;

    Command helpFor = Command::Check; // for Command::Help
    QString error;                    // empty, or one line with the problem and what to do

    bool usesOutput() const { return resultsFile == Output || reportFile == Output; }

    // The first argument is the program's name. Messages and help need the texts of a language.
    static Options parse(const QStringList& arguments);
    static QString languageIn(const QStringList& arguments); // as given, also with wrong options
    static QString helpText(Command command);                // what --help prints
};
