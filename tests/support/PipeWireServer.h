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

// A private PipeWire server: a message bus, the server and its session manager in a temporary
// runtime folder, without the machine's devices. As long as it lives, the environment of this
// process points to it.
class PipeWireServer
{
public:
    // How this server speaks, if not as usual.
    struct Habits
    {
        QString language;    // of its messages, such as "de"
        QByteArray noCamera; // what the session manager says if it has no camera for a stream
    };

    explicit PipeWireServer(const Habits& habits = Habits());
    ~PipeWireServer();
    PipeWireServer(const PipeWireServer&) = delete;
    PipeWireServer& operator=(const PipeWireServer&) = delete;

    bool start(); // true once it is ready for clients
    void stop();
    void kill();   // the server by SIGKILL; the rest ends with it
    void freeze(); // the server stops answering
    void thaw();
    void freezeManager(); // nobody links streams to cameras any more
    void thawManager();
    // Ends the connections of this process that have a stream, or those that have none. False if
    // there is none.
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
    bool writeManagerScript();
    bool startProgram(const QString& name, const QStringList& arguments = {});
    bool waitFor(const QString& what, const std::function<bool()>& isReady);
    void signal(const QString& name, int number) const;

    Habits m_habits;
    QTemporaryDir m_folder;
    QString m_runtime;
    QString m_problem;
    QProcessEnvironment m_before;
    std::vector<Program> m_programs; // in the order of their start
};

} // namespace TestSupport
