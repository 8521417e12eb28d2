// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/FaultProcess.h"

#include <QString>
#include <utility>
#include <vector>

// The outcome of the campaign as a Markdown table.
class ResultTable
{
public:
    void setDuration(qint64 ms) { m_ms = ms; }
    void add(const Fault& fault, const FaultResult& result);
    bool hasFailure() const { return m_hasFailure; }
    QString row(const Fault& fault, const FaultResult& result) const;
    QString toMarkdown() const; // with the summary
    // The document with the table between its two marks; empty without them.
    QByteArray placedIn(const QByteArray& document) const;
    QString summary() const; // one line
    static QString head();

private:
    QString m_rows;
    int m_faults = 0;
    int m_injections = 0;
    int m_signals = 0;
    qint64 m_ms = 0;
    bool m_hasFailure = false;
};
