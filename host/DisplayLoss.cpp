// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DisplayLoss.h"

#include "host/Console.h"
#include "host/ExitCode.h"
#include "host/ProgramEnd.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QThread>

#include <array>
#include <cstdlib>
#include <utility>

namespace {

constexpr int LongestSavingMs = 2 * ProgramEnd::BudgetMs;

// What the engine warns of is for the user, what Qt does for developers. Qt's plain warnings are
// looked at here before they are dropped, and so are its plain errors.
const char* const QuietRules = "*.debug=false\n*.info=false\n*.warning=false\n"
                               "default.warning=true\nengine.*.warning=true";

const std::array<QLatin1String, 3> LastWords = {
    QLatin1String("The X11 connection broke"),
    QLatin1String("The Wayland connection broke"),
    QLatin1String("The Wayland connection experienced a fatal error"),
};

bool theIsVerbose = true;
QtMessageHandler thePrevious = nullptr;
std::function<void()> theSaving;

bool isLastWord(const QString& text)
{
    return std::any_of(LastWords.begin(), LastWords.end(),
                       [&text](QLatin1String words) { return text.startsWith(words); });
}

[[noreturn]] void endAtOnce()
{
    Console::printError(qtTrId("ID_Host_Display_Gone"));
    ProgramEnd::begin();
    const std::function<void()> save = std::exchange(theSaving, nullptr);
    if (save) {
        save();
    }
    ProgramEnd::leave(ExitCode::Unavailable);
}

// What is saved belongs to the GUI thread. On Wayland another one reads, and would end the program
// when this returns.
[[noreturn]] void endFromAnyThread()
{
    if (QThread::currentThread() != qApp->thread()) {
        QMetaObject::invokeMethod(qApp, &endAtOnce, Qt::QueuedConnection);
        QThread::msleep(LongestSavingMs);
        std::_Exit(static_cast<int>(ExitCode::Unavailable));
    }
    endAtOnce();
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtWarningMsg && isLastWord(text) && qApp) {
        endFromAnyThread();
    }
    const bool isPlain = !context.category || qstrcmp(context.category, "default") == 0;
    if (theIsVerbose || type == QtFatalMsg || !isPlain) {
        thePrevious(type, context, text);
    }
}

} // namespace

DisplayLoss::DisplayLoss(bool isVerbose)
{
    theIsVerbose = isVerbose;
    if (!isVerbose) {
        QLoggingCategory::setFilterRules(QLatin1String(QuietRules));
    }
    thePrevious = qInstallMessageHandler(&handle);
}

DisplayLoss::~DisplayLoss()
{
    theSaving = nullptr;
    qInstallMessageHandler(thePrevious);
}

void DisplayLoss::setSaving(std::function<void()> save)
{
    theSaving = std::move(save);
}
