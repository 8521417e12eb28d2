// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/ProgramEnd.h"

#include "host/Console.h"
#include "host/System.h"
#include "platform/backend/FileWriter.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>

namespace {

QElapsedTimer theClock;

bool isWrongEnd(ExitCode code)
{
    return static_cast<int>(code) >= static_cast<int>(ExitCode::WrongUsage);
}

} // namespace

void ProgramEnd::begin()
{
    if (!theClock.isValid()) {
        theClock.start();
    }
}

void ProgramEnd::cancel()
{
    theClock.invalidate();
}

int ProgramEnd::remainingMs()
{
    if (System::hasBeenStopped() && theClock.isValid()) {
        theClock.start(); // nothing was done meanwhile
    }
    const qint64 elapsed = theClock.isValid() ? theClock.elapsed() : 0;
    return static_cast<int>(std::max<qint64>(BudgetMs - elapsed, 0));
}

void ProgramEnd::leave(ExitCode code)
{
    begin();
    Platform::FileWriter::waitForWritten(remainingMs());
    const Platform::FileWriter::Outcome files = Platform::FileWriter::outcome();
    for (const QString& path : files.waiting) {
        Console::printError(
            qtTrId("ID_Host_File_NotWritten").arg(path, qtTrId("ID_Engine_File_DiskSilent")));
    }
    const bool isComplete = files.waiting.isEmpty() && files.failed.isEmpty();
    System::leave(isComplete || isWrongEnd(code) ? code : ExitCode::CannotWrite);
}
