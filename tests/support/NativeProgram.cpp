// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/NativeProgram.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

constexpr int PatienceMs = 10000;

} // namespace

bool NativeProgram::start(const QString& program, const QStringList& options)
{
    end();
    const int port = qEnvironmentVariableIntValue("ENVCHECK_NATIVE_HELPER");
    m_socket.connectToHost(QStringLiteral("127.0.0.1"), quint16(port));
    if (!m_socket.waitForConnected(PatienceMs)) {
        return false;
    }
    const QJsonArray command = QJsonArray::fromStringList(QStringList(program) + options);
    m_socket.write(QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n');
    return expect("started");
}

void NativeProgram::feed(const QByteArray& input)
{
    m_socket.write(QByteArray::number(input.size()) + '\n');
    m_socket.write(input);
    m_socket.flush();
}

bool NativeProgram::waitForEnd()
{
    return !isRunning() || m_socket.waitForDisconnected(PatienceMs);
}

bool NativeProgram::order(const QByteArray& word, const QByteArray& answer)
{
    m_socket.write(word + '\n');
    return expect(answer);
}

bool NativeProgram::expect(const QByteArray& word)
{
    while (!m_socket.canReadLine() && m_socket.waitForReadyRead(PatienceMs)) {
    }
    return m_socket.readLine() == word + '\n';
}
