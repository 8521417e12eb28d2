// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/host/ProgramTest.h"

#include <QtTest>
#include <csignal>

using namespace TestSupport;

// "envcheck serve".
class tst_ServeCommand : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void serveAndMeasure();
    void servedPortInUse();

private:
    static QString portOf(QProcess& server); // which it prints; empty without one
};

QString tst_ServeCommand::portOf(QProcess& server)
{
    static const QRegularExpression port(QStringLiteral("UDP port (\\d+)"));
    return server.waitForReadyRead(TimeoutMs)
               ? port.match(QString::fromUtf8(server.readAllStandardOutput())).captured(1)
               : QString();
}

void tst_ServeCommand::serveAndMeasure()
{
    const std::unique_ptr<QProcess> server = started(words("serve --port 0"));
    const QString number = portOf(*server);
    QVERIFY(!number.isEmpty());
    for (const char* host : {"127.0.0.1", "[::1]", "stun:127.0.0.1", "stun:[::1]"}) {
        const Run measured = run(QStringList{
            QStringLiteral("network"), QStringLiteral("--count"), QStringLiteral("1"),
            QStringLiteral("--server"), QStringLiteral("%1:%2").arg(QLatin1String(host), number)});
        QCOMPARE(measured.code, 0);
        QVERIFY2(measured.out.contains(QLatin1String("delay ")), qPrintable(measured.out));
        QVERIFY2(!measured.out.contains(QLatin1String("::ffff")), qPrintable(measured.out));
    }
    ::kill(static_cast<pid_t>(server->processId()), SIGINT);
    QCOMPARE(finished(*server).code, 0);
}

void tst_ServeCommand::servedPortInUse()
{
    const std::unique_ptr<QProcess> server = started(words("serve --port 0"));
    const QString number = portOf(*server);
    QVERIFY(!number.isEmpty());
    const Run second = run(QStringList{QStringLiteral("serve"), QStringLiteral("--port"), number});
    QCOMPARE(second.code, 69);
    QVERIFY2(second.error.contains(number), qPrintable(second.error));
    server->terminate();
    QCOMPARE(finished(*server).code, 0);
}

QTEST_GUILESS_MAIN(tst_ServeCommand)
#include "tst_ServeCommand.moc"
