// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DisplayOpening.h"

#include "host/Console.h"
#include "host/DisplayKind.h"
#include "host/ExitCode.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdlib>
#include <system_error>

namespace {

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

} // namespace

DisplayOpening::DisplayOpening(const QString& problem)
{
    theProblem = problem;
    if (!DisplayKind::choose()) {
        giveUp();
    }
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
    return !DisplayKind::displays().isEmpty();
}

QString DisplayOpening::problem()
{
    const QStringList displays = DisplayKind::displays();
    return displays.isEmpty()
               ? qtTrId("ID_Host_Display_None")
               : qtTrId("ID_Host_Display_NotOpened").arg(displays.join(QStringLiteral(", ")));
}

void DisplayOpening::watch()
{
    std::unique_lock lock(m_mutex);
    if (!m_end.wait_for(lock, std::chrono::milliseconds(AnswerTimeoutMs),
                        [this] { return m_isOpen; })) {
        giveUp();
    }
}
