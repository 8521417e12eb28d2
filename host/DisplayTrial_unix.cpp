// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DisplayTrial.h"

#include <QGuiApplication>
#include <QStringList>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

const char* const KindVariable = "QT_QPA_PLATFORM";
constexpr int TrialMs = 10000;

void endAtFatalMessage(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type == QtFatalMsg) {
        _exit(EXIT_FAILURE);
    }
}

// Leaves no trace: neither a core file nor a start that the desktop waits for.
[[noreturn]] void openAndWait(int link, int argc, char* argv[])
{
    const rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
    const int nowhere = open("/dev/null", O_RDWR);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    unsetenv("DESKTOP_STARTUP_ID");
    unsetenv("SESSION_MANAGER");
    qInstallMessageHandler(&endAtFatalMessage);
    const QGuiApplication application(argc, argv);
    char byte = 0;
    if (write(link, &byte, 1) == 1) {
        const auto count = read(link, &byte, 1); // until the other end is closed
        static_cast<void>(count);
    }
    _exit(EXIT_SUCCESS);
}

} // namespace

DisplayTrial::DisplayTrial(int argc, char* argv[])
{
    const QString kind = qEnvironmentVariable(KindVariable);
    const QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
    const QString x11 = qEnvironmentVariable("DISPLAY");
    if (kind.isEmpty() && wayland.isEmpty() && x11.isEmpty()) {
        m_hasFailed = true;
        return;
    }
    if (opens(argc, argv)) {
        return;
    }
    if (kind.isEmpty()) {
        for (const auto& [name, value] : {std::pair("wayland", wayland), std::pair("xcb", x11)}) {
            qputenv(KindVariable, name);
            if (!value.isEmpty() && opens(argc, argv)) {
                return;
            }
        }
        qunsetenv(KindVariable);
    }
    QStringList tried{x11, wayland, kind};
    tried.removeAll(QString());
    m_tried = tried.join(QStringLiteral(", "));
    m_hasFailed = true;
}

DisplayTrial::~DisplayTrial()
{
    end();
}

QString DisplayTrial::problem() const
{
    return m_tried.isEmpty() ? qtTrId("ID_Host_Display_None")
                             : qtTrId("ID_Host_Display_NotOpened").arg(m_tried);
}

bool DisplayTrial::opens(int argc, char* argv[])
{
    int ends[2] = {-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        return true; // it can't be tried, which says nothing
    }
    const pid_t process = fork();
    if (process == 0) {
        close(ends[0]);
        openAndWait(ends[1], argc, argv);
    }
    close(ends[1]);
    m_link = ends[0];
    m_process = process;
    pollfd end = {m_link, POLLIN, 0};
    char byte = 0;
    const bool isOpen = process < 0 || (poll(&end, 1, TrialMs) == 1 && read(m_link, &byte, 1) == 1);
    if (!isOpen) {
        kill(process, SIGKILL);
        this->end();
    }
    return isOpen;
}

void DisplayTrial::end()
{
    if (m_link >= 0) {
        close(m_link);
        m_link = -1;
    }
    if (m_process > 0) {
        waitpid(m_process, nullptr, 0);
        m_process = -1;
    }
}
