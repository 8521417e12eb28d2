// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTcpSocket>

// A program of the system below Wine, which tools/windows/native-helper runs. It ends with this
// object. Any thread may have one.
class NativeProgram
{
public:
    bool start(const QString& program, const QStringList& options);
    void feed(const QByteArray& input); // once: all that a player is to play
    bool isRunning() const { return m_socket.state() == QAbstractSocket::ConnectedState; }
    bool waitForEnd(); // without an event loop
    // Sends a word and waits for the answer.
    bool order(const QByteArray& word, const QByteArray& answer);
    void end() { m_socket.abort(); }

    QTcpSocket& socket() { return m_socket; } // what it prints

private:
    bool expect(const QByteArray& word);

    QTcpSocket m_socket;
};
