// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdio>

// What is printed while this lives goes into a file instead.
class CapturedOutput
{
public:
    explicit CapturedOutput(const QString& path, std::FILE* stream = stdout);
    ~CapturedOutput();
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

    QString text(); // ends the capture

private:
    QString m_path;
    std::FILE* m_stream;
    int m_terminal = -1;
};
