// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

// Preloaded into the program (LD_PRELOAD), walks through its dialog, and writes the answers that it
// clicks to the file that CAMPAIGN_ANSWERS names.

#include "tests/campaign/DialogUser.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QTimer>

#include <cstdlib>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// Straight to the system: files that faults hit are the program's.
void note(const char* check, const char* answer)
{
    const QByteArray line = QByteArray(check) + ' ' + answer + '\n';
    const long file = syscall(SYS_openat, AT_FDCWD, std::getenv("CAMPAIGN_ANSWERS"),
                              O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    syscall(SYS_write, file, line.constData(), line.size());
    syscall(SYS_close, file);
}

// The application may be one that is tried out before there are windows.
void startUser()
{
    if (qApp->inherits("QApplication") && std::getenv("CAMPAIGN_ANSWERS")) {
        QTimer::singleShot(0, qApp, [] {
            auto* const user = new DialogUser([](Step, const DialogView&) {}, note);
            user->setParent(qApp);
        });
    }
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startUser)
