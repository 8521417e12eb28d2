// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

// What the command line asks for.
struct Options
{
    enum class Command { Check, Version, Help };
    enum class Platform { Devices, Scripted };

    Command command = Command::Check;
    Platform platform = Platform::Devices;
    QString scenario; // a file or the name of a bundled one
    QString language; // empty: the system's
    QString server;   // "stun:HOST:PORT"; empty: the built-in responder
    QString account;
    QString nickname;
    QString cdn; // "FIRST/SECOND"
    QString resultsFile;
    QString reportUrl;
    QString tourFolder;

    QString error;    // empty, or one line that names what is wrong and what to do
    QString helpText; // for Command::Help

    static Options parse(const QStringList& arguments);
};
