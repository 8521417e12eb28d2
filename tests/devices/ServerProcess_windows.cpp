// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/ServerProcess.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTcpSocket>

namespace {

constexpr int PatienceMs = 10000;

} // namespace

class ServerProcess::System
{
public:
    bool expect(const QByteArray& word)
    {
        while (!socket.canReadLine() && socket.waitForReadyRead(PatienceMs)) {
        }
        return socket.readLine() == word + '\n';
    }

    QTcpSocket socket;
};

ServerProcess::ServerProcess() : m_system(std::make_unique<System>())
{
}

ServerProcess::~ServerProcess()
{
    kill();
}

bool ServerProcess::start(const QString& program, const QStringList& options)
{
    kill();
    QTcpSocket& socket = m_system->socket;
    const int port = qEnvironmentVariableIntValue("ENVCHECK_NATIVE_HELPER");
    socket.connectToHost(QStringLiteral("127.0.0.1"), quint16(port));
    if (!socket.waitForConnected(PatienceMs)) {
        return false;
    }
    const QJsonArray command = QJsonArray::fromStringList(QStringList(program) + options);
    socket.write(QJsonDocument(command).toJson(QJsonDocument::Compact) + '\n');
    return m_system->expect("started");
}

bool ServerProcess::isRunning() const
{
    return m_system->socket.state() == QAbstractSocket::ConnectedState;
}

void ServerProcess::kill()
{
    if (isRunning()) {
        m_system->socket.write("kill\n");
        m_system->expect("ended");
        m_system->socket.abort();
    }
}
