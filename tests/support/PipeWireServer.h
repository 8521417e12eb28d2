// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <vector>

namespace TestSupport {

class TestProcess;

// A PipeWire server of one's own: a message bus, the server and its session manager in a private
// runtime folder, without any of the machine's devices. While there is one the environment of
// this process points there.
class PipeWireServer
{
public:
    PipeWireServer();
    ~PipeWireServer();
    PipeWireServer(const PipeWireServer&) = delete;
    PipeWireServer& operator=(const PipeWireServer&) = delete;

    bool start(); // true once it is ready for clients
    void stop();
    void kill();   // the server, without a farewell; the rest ends with it
    void freeze(); // the server stops answering
    void thaw();
    void freezeManager(); // nobody links streams to cameras any more
    void thawManager();
    // Ends this process' connections with a stream, or those without, and no others. False where
    // there are none.
    bool cutConnections(bool withStream);

    bool isSocketThere() const;
    QString folder() const { return m_folder.path(); }
    QString problem() const { return m_problem; } // why start() failed

private:
    struct Program
    {
        QString name;
        std::unique_ptr<TestProcess> process;
    };

    void setEnvironment();
    bool writeConfiguration();
    bool startProgram(const QString& name, const QStringList& arguments = {});
    bool waitFor(const QString& what, const std::function<bool()>& isReady);
    void signal(const QString& name, int number) const;

    QTemporaryDir m_folder;
    QString m_runtime;
    QString m_problem;
    QProcessEnvironment m_before;
    std::vector<Program> m_programs; // in the order of their start
};

} // namespace TestSupport
