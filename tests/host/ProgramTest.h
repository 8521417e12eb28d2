// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <memory>

namespace TestSupport {

QStringList words(const char* text);

// A test of the program as users start it, each time with a home of its own.
class ProgramTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();

protected:
    struct Run
    {
        int code = -1;
        QString out;
        QString error;
    };

    static constexpr int TimeoutMs = 60000; // a tour of a build with sanitizers takes half of it

    // wrapper: a script of bash, which runs the program as "$0" "$@".
    std::unique_ptr<QProcess> started(const QStringList& arguments,
                                      const QString& wrapper = QString()) const;
    static Run finished(QProcess& process);
    Run run(const QStringList& arguments) const { return finished(*started(arguments)); }
    // Opens the check, waits until it runs, and ends it.
    Run checked(const QStringList& arguments, int signal = SIGTERM,
                const QString& wrapper = QString()) const;
    QString file(const char* name) const { return m_home->filePath(QLatin1String(name)); }
    void configure(const char* path, const QByteArray& content) const;
    QString quickEnd() const; // a scenario that soon puts the user out
    QString dataFolder() const { return file(".local/share/envcheck"); }
    static QJsonObject jsonOf(const QString& path);
    static QStringList linesOf(const QString& path);
    static void addSignals(); // as rows with a "signal"

    std::unique_ptr<QTemporaryDir> m_home;
};

} // namespace TestSupport
