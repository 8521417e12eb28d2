// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DisplayOpening.h"

#include "host/Console.h"
#include "host/ExitCode.h"

#include <QStringList>

#include <chrono>
#include <cstdlib>
#include <system_error>

namespace {

const char* const KindVariable = "QT_QPA_PLATFORM";

QtMessageHandler thePrevious = nullptr;
QString theProblem;

[[noreturn]] void giveUp()
{
    Console::printError(theProblem);
    std::_Exit(static_cast<int>(ExitCode::Unavailable));
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        giveUp();
    }
    thePrevious(type, context, text);
}

#if defined(Q_OS_WIN)
QStringList displays()
{
    return {QStringLiteral("desktop")}; // there always is one
}

void chooseKind()
{
}
#else
QString valueOf(const char* variable)
{
    return qEnvironmentVariable(variable);
}

QStringList displays()
{
    QStringList names{valueOf("DISPLAY"), valueOf("WAYLAND_DISPLAY"), valueOf(KindVariable)};
    names.removeAll(QString());
    return names;
}

// Without its folder, libwayland prints a line of its own and gives up.
bool mayUseWayland()
{
    const QString display = valueOf("WAYLAND_DISPLAY");
    const bool hasFolder =
        display.startsWith(QLatin1Char('/')) || !valueOf("XDG_RUNTIME_DIR").isEmpty();
    return !display.isEmpty() && hasFolder;
}

// In Qt's own order, which prefers X11 on GNOME.
void chooseKind()
{
    if (!valueOf(KindVariable).isEmpty()) {
        return;
    }
    QStringList kinds;
    if (!valueOf("DISPLAY").isEmpty()) {
        kinds.append(QStringLiteral("xcb"));
    }
    if (mayUseWayland()) {
        const bool isGnome = valueOf("XDG_CURRENT_DESKTOP").contains(QLatin1String("GNOME"));
        const bool isFirst = valueOf("XDG_SESSION_TYPE") == QLatin1String("wayland") && !isGnome;
        kinds.insert(isFirst ? 0 : kinds.size(), QStringLiteral("wayland"));
    }
    if (kinds.isEmpty()) {
        giveUp();
    }
    qputenv(KindVariable, kinds.join(QLatin1Char(';')).toLatin1());
}
#endif

} // namespace

DisplayOpening::DisplayOpening(const QString& problem)
{
    theProblem = problem;
    chooseKind();
    thePrevious = qInstallMessageHandler(&handle);
    try {
        m_watch = std::thread([this] { watch(); });
    } catch (const std::system_error&) {
        m_isOpen = true; // no more threads: nobody watches
    }
}

DisplayOpening::~DisplayOpening()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_isOpen = true;
    }
    m_end.notify_one();
    if (m_watch.joinable()) {
        m_watch.join();
    }
    qInstallMessageHandler(thePrevious);
}

bool DisplayOpening::hasDisplay()
{
    return !displays().isEmpty();
}

QString DisplayOpening::problem()
{
    return hasDisplay()
               ? qtTrId("ID_Host_Display_NotOpened").arg(displays().join(QStringLiteral(", ")))
               : qtTrId("ID_Host_Display_None");
}

void DisplayOpening::watch()
{
    std::unique_lock lock(m_mutex);
    if (!m_end.wait_for(lock, std::chrono::milliseconds(AnswerTimeoutMs),
                        [this] { return m_isOpen; })) {
        giveUp();
    }
}
