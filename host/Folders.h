// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The folders for the files of the program. They need not exist yet.
namespace Folders {

QString data();         // settings, journal, outbox
QString reports();      // one file for each run
QString runs();         // the list of runs, a file
QString redactionKey(); // a file

// A path below the user's home without its name, which is often that of a person: "~/…".
QString shortened(const QString& path);
QString expanded(const QString& path); // takes both

// Creates the folder of the reports. Only the user may open the folders of the program.
void makeReports();

} // namespace Folders
