// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/ResultTable.h"

#include "tests/campaign/Fault.h"

QString ResultTable::head()
{
    return QStringLiteral("| fault | injections | what happened | longest gap | passed |\n"
                          "|---|---|---|---|---|\n");
}

QString ResultTable::row(const Fault& fault, const FaultResult& result) const
{
    const QString gap = result.longestGapMs < 0 ? QStringLiteral("-")
                                                : QStringLiteral("%1 ms").arg(result.longestGapMs);
    const QString signalText =
        result.signalCount > 0 ? QStringLiteral(", %1 signals").arg(result.signalCount) : QString();
    QString happened = result.failures.isEmpty() ? QLatin1String(fault.now)
                                                 : result.failures.join(QStringLiteral("; "));
    happened.replace(QLatin1Char('|'), QLatin1Char('/'))
        .replace(QLatin1Char('\n'), QLatin1Char(' '));
    return QStringLiteral("| `%1`: %2 | %3%4 | %5 | %6 | %7 |\n")
        .arg(QLatin1String(fault.name), QLatin1String(fault.what),
             QString::number(result.injections), signalText, happened, gap,
             result.failures.isEmpty() ? QStringLiteral("yes") : QStringLiteral("**no**"));
}

void ResultTable::add(const Fault& fault, const FaultResult& result)
{
    m_rows += row(fault, result);
    ++m_faults;
    m_injections += result.injections;
    m_signals += result.signalCount;
    m_hasFailure = m_hasFailure || !result.failures.isEmpty();
}

QString ResultTable::toMarkdown() const
{
    return head() + m_rows + QStringLiteral("\n%1.\n").arg(summary());
}

QByteArray ResultTable::placedIn(const QByteArray& document) const
{
    const QByteArray begin = "<!-- campaign -->\n";
    const QByteArray end = "<!-- end of campaign -->\n";
    const int from = document.indexOf(begin) + begin.size();
    const int to = document.indexOf(end);
    return from >= begin.size() && to >= from
               ? document.left(from) + toMarkdown().toUtf8() + document.mid(to)
               : QByteArray();
}

QString ResultTable::summary() const
{
    constexpr int MsPerSecond = 1000;
    return QStringLiteral("%1 faults, %2 injections, %3 signals, %4 s")
        .arg(QString::number(m_faults), QString::number(m_injections), QString::number(m_signals),
             QString::number(m_ms / MsPerSecond));
}
