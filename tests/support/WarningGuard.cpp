// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/WarningGuard.h"

#include "tests/support/TestMain.h"

#include <private/qtestlog_p.h>

#include <algorithm>

namespace {

// Further ones, one in a line: what Wine makes Qt warn of.
constexpr char MoreLetThrough[] = "ENVCHECK_EXPECTED_WARNINGS";

} // namespace

WarningGuard::WarningGuard()
    : QAbstractTestLogger(nullptr),
      m_letThrough{
          // The offscreen platform, at windows of a fixed size and at popups.
          QStringLiteral("This plugin does not support"),
          // A slot of the microphone page has the name of one that a form connects, and no sender
          // of that name.
          QStringLiteral("QMetaObject::connectSlotsByName: No matching signal for on_record"),
      }
{
    m_letThrough +=
        qEnvironmentVariable(MoreLetThrough).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void WarningGuard::enterTestFunction(const char* /*function*/)
{
}

void WarningGuard::leaveTestFunction()
{
}

void WarningGuard::addIncident(IncidentTypes /*type*/, const char* /*description*/,
                               const char* /*file*/, int /*line*/)
{
}

void WarningGuard::addBenchmarkResult(const QBenchmarkResult& /*result*/)
{
}

void WarningGuard::addMessage(MessageTypes type, const QString& message, const char* file, int line)
{
    const bool isWarning = type == Warn || type == QWarning || type == QSystem;
    if (isWarning && !isLetThrough(message)) {
        QTest::qFail(qPrintable(QStringLiteral("Unexpected warning: ") + message), file, line);
    }
}

bool WarningGuard::isLetThrough(const QString& message) const
{
    return std::any_of(m_letThrough.cbegin(), m_letThrough.cend(),
                       [&message](const QString& start) { return message.startsWith(start); });
}

int QTest::qExecGuarded(QObject* test, int argc, char** argv)
{
    qInit(test, argc, argv);
    QTestLog::addLogger(new WarningGuard); // deleted with the other loggers
    const int failures = qRun();
    qCleanup();
    return failures;
}
