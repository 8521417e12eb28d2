// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QStringList>
#include <memory>

namespace TestSupport {

// A program that plays or records sound, or decodes it. Under Wine a helper runs it
// (tools/windows/native-helper). One source file for each system.
class SoundTool
{
public:
    SoundTool();
    ~SoundTool(); // kills it
    SoundTool(const SoundTool&) = delete;
    SoundTool& operator=(const SoundTool&) = delete;

    // A player gets all of its input at once.
    void start(const QString& program, const QStringList& options, const QByteArray& input = {});
    bool isRunning() const;
    bool waitForEnd(int timeoutMs); // the event loop goes on meanwhile
    void kill();
    QIODevice& output(); // tells by readyRead() of what it prints

private:
    class System;

    std::unique_ptr<System> m_system;
};

} // namespace TestSupport
