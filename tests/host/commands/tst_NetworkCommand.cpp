// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/host/ProgramTest.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace TestSupport;

// "envcheck network", and the server that is set for it and the check.
class tst_NetworkCommand : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void networkLines();
    void networkCauses_data();
    void networkCauses();
    void networkWithoutServer();
    void serverSetOnceForAll();
    void brokenConfiguration_data();
    void brokenConfiguration();
};

void tst_NetworkCommand::networkLines()
{
    const Run good = run(words("network --scenario all-well --count 2"));
    QCOMPARE(good.code, 0);
    const QStringList lines = good.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(0).startsWith(QLatin1String("server ")), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(2).startsWith(QLatin1String("delay ")), qPrintable(lines.at(2)));
    QVERIFY(!good.out.contains(QLatin1Char('\r')));
    const Run none = run(words("network --scenario network-unmeasured --count 1"));
    QCOMPARE(none.code, 1);
    QVERIFY2(none.out.contains(QLatin1String("no answer")), qPrintable(none.out));
}

void tst_NetworkCommand::networkCauses_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("cause");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("wrapper");
    // Nobody listens on the port of "discard" there.
    QTest::newRow("refused") << "--server 127.0.0.1:9"
                             << "refused"
                             << "the server refuses, " << 1 << "";
    // A network of its own, without any interface that is up.
    QTest::newRow("no route") << "--server 192.0.2.1"
                              << "noRoute"
                              << "no way to the server, " << 1
                              << "exec unshare --map-root-user --net \"$0\" \"$@\"";
    QTest::newRow("no server") << ""
                               << "noServer"
                               << "not measured: no server" << 69 << "";
    QTest::newRow("no answer") << "--scenario network-unmeasured"
                               << "noAnswer"
                               << "no answer, " << 1 << "";
    QTest::newRow("good") << "--scenario all-well"
                          << ""
                          << "delay " << 0 << "";
}

// As it comes, in the words of the report.
void tst_NetworkCommand::networkCauses()
{
    QFETCH(QString, arguments);
    QFETCH(QString, cause);
    QFETCH(QString, text);
    QFETCH(QString, wrapper);
    const QStringList all = words("network --count 1") + words(qPrintable(arguments));
    const Run lines = finished(*started(all, wrapper));
    QVERIFY2(lines.out.contains(text), qPrintable(lines.out));
    QTEST(lines.code, "code");
    const Run json = finished(*started(all + words("--json"), wrapper));
    QTEST(json.code, "code");
    QCOMPARE(json.out.count(QLatin1Char('\n')), 1);
    const QJsonObject line = QJsonDocument::fromJson(json.out.toUtf8()).object();
    QCOMPARE(line.value(QStringLiteral("cause")).toString(), cause);
    QCOMPARE(line.value(QStringLiteral("verdict")).toString(),
             cause.isEmpty()                      ? QStringLiteral("passed")
             : cause == QLatin1String("noServer") ? QStringLiteral("notTested")
                                                  : QStringLiteral("failed"));
    // After a second, nothing that was asked is overdue: only a scenario knows of losses then.
    const bool isLossKnown =
        cause.isEmpty() || cause == QLatin1String("noAnswer") || cause == QLatin1String("noServer");
    QCOMPARE(line.value(QStringLiteral("lossPercent")).isDouble(), isLossKnown);
    QCOMPARE(lines.out.contains(QStringLiteral("loss –")), !isLossKnown);
    const bool hasAnswer = cause.isEmpty() || cause == QLatin1String("noServer");
    for (const char* key : {"delayMs", "jitterMs", "delay5Ms", "delay95Ms", "lossPercent"}) {
        const QJsonValue value = line.value(QLatin1String(key));
        QVERIFY2(value.isNull() || value.toDouble(-1) >= 0, key);
        QVERIFY2(key == QLatin1String("lossPercent") || value.isDouble() == hasAnswer, key);
    }
}

void tst_NetworkCommand::networkWithoutServer()
{
    const Run result = run(words("network --count 1"));
    QCOMPARE(result.code, 69);
    QVERIFY2(result.out.contains(QLatin1String(": not measured: no server\n")),
             qPrintable(result.out));
    QVERIFY2(result.error.contains(QLatin1String("--server")), qPrintable(result.error));
    QVERIFY2(result.error.contains(file(".config/envcheck/envcheck.conf")),
             qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
}

// Each one outdoes those before it: system, user, environment, option.
void tst_NetworkCommand::serverSetOnceForAll()
{
    const auto measured = [this](const QString& wrapper, const QStringList& options) {
        const std::unique_ptr<QProcess> process =
            started(words("network --count 1") + options, wrapper);
        return finished(*process).out.section(QLatin1Char(','), 0, 0);
    };
    const QString plain = QStringLiteral("exec \"$0\" \"$@\"");
    configure("xdg/envcheck/envcheck.conf", "server=127.0.0.1:1111\n");
    QCOMPARE(measured(plain, {}), QStringLiteral("server 127.0.0.1:1111"));
    configure(".config/envcheck/envcheck.conf", "server=127.0.0.1:2222\n");
    QCOMPARE(measured(plain, {}), QStringLiteral("server 127.0.0.1:2222"));
    const QString variable = QStringLiteral("ENVCHECK_SERVER=127.0.0.1:3333 ") + plain;
    QCOMPARE(measured(variable, {}), QStringLiteral("server 127.0.0.1:3333"));
    QCOMPARE(measured(variable, words("--server 127.0.0.1:4444")),
             QStringLiteral("server 127.0.0.1:4444"));
}

void tst_NetworkCommand::brokenConfiguration_data()
{
    QTest::addColumn<QString>("wrapper");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("named");
    const QString plain = QStringLiteral("exec \"$0\" \"$@\"");
    QTest::newRow("file, check") << plain << QByteArray("server=x:0\n") << "" << 65 << "server=x:0";
    QTest::newRow("file, network")
        << plain << QByteArray("sever=x\n") << "network" << 65 << "unknown key sever";
    QTest::newRow("file, not asked")
        << plain << QByteArray("sever=x\n") << "serve --help" << 0 << "";
    QTest::newRow("variable") << QStringLiteral("ENVCHECK_SERVER=http://x ") + plain << QByteArray()
                              << "network" << 64 << "ENVCHECK_SERVER=http://x";
}

void tst_NetworkCommand::brokenConfiguration()
{
    QFETCH(QString, wrapper);
    QFETCH(QByteArray, content);
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    configure(".config/envcheck/envcheck.conf", content);
    const std::unique_ptr<QProcess> process = started(words(qPrintable(arguments)), wrapper);
    const Run result = finished(*process);
    QTEST(result.code, "code");
    QVERIFY2(result.error.contains(named), qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), named.isEmpty() ? 0 : 1);
}

QTEST_GUILESS_MAIN(tst_NetworkCommand)
#include "tst_NetworkCommand.moc"
