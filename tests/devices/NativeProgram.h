// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTcpSocket>

// A program of the system below Wine, which tools/windows/native-helper runs. It ends with this
// object.
class NativeProgram
{
public:
    bool start(const QString& program, const QStringList& options);
    bool isRunning() const { return m_socket.state() == QAbstractSocket::ConnectedState; }
    // Sends a word and waits for the answer.
    bool order(const QByteArray& word, const QByteArray& answer);
    void end() { m_socket.abort(); }

    QTcpSocket& socket() { return m_socket; } // what it prints, or what it plays

private:
    bool expect(const QByteArray& word);

    QTcpSocket m_socket;
};
