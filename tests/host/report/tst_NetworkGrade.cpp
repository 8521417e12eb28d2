// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/report/NetworkGrade.h"
#include "host/report/ReportWords.h"
#include "platform/backend/NetworkLimits.h"

#include <QtTest>

class tst_NetworkGrade : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void levels_data();
    void levels();
    void nothingMeasured();
    void noServer();
    void linesNameTheirSource();
    void fixedLimits_data();
    void fixedLimits();
};

void tst_NetworkGrade::levels_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<int>("loss");
    QTest::addColumn<int>("jitter");
    QTest::addColumn<QString>("level");
    QTest::newRow("best") << 0 << 0 << 0 << "good";
    QTest::newRow("150 ms one way") << 300 << 0 << 0 << "good";
    QTest::newRow("150.5 ms one way") << 301 << 0 << 0 << "fair";
    QTest::newRow("400 ms one way") << 800 << 0 << 0 << "fair";
    QTest::newRow("400.5 ms one way") << 801 << 0 << 0 << "poor";
    QTest::newRow("1 %") << 0 << 1 << 0 << "good";
    QTest::newRow("2 %") << 0 << 2 << 0 << "fair";
    QTest::newRow("3 %") << 0 << 3 << 0 << "fair";
    QTest::newRow("4 %") << 0 << 4 << 0 << "poor";
    QTest::newRow("50 ms of jitter") << 0 << 0 << 50 << "good";
    QTest::newRow("51 ms of jitter") << 0 << 0 << 51 << "fair";
    QTest::newRow("any jitter") << 0 << 0 << 5000 << "fair";
    QTest::newRow("the worst counts") << 400 << 4 << 0 << "poor";
}

void tst_NetworkGrade::levels()
{
    QFETCH(int, delay);
    QFETCH(int, loss);
    QFETCH(int, jitter);
    const NetworkGrade grade = NetworkGrade::of({loss, delay, jitter, 50, 50});
    QTEST(ReportWords::of(grade.level), "level");
}

void tst_NetworkGrade::nothingMeasured()
{
    QVERIFY(NetworkGrade::of({100, -1, 0, 50, 0}).lines.empty());
}

// The best figures of this machine's own responder are no grade.
void tst_NetworkGrade::noServer()
{
    Platform::NetworkFigures figures{0, 1, 0, 50, 50};
    QCOMPARE(NetworkGrade::of(figures).lines.size(), std::size_t(3));
    figures.problem = Platform::NetworkProblem::NoServer;
    QVERIFY(NetworkGrade::of(figures).lines.empty());
}

void tst_NetworkGrade::linesNameTheirSource()
{
    const NetworkGrade grade = NetworkGrade::of({2, 100, 5, 50, 49});
    QCOMPARE(grade.lines.size(), std::size_t(3));
    QCOMPARE(grade.lines.at(0).value, 50.0);
    for (const NetworkGrade::Line& line : grade.lines) {
        QVERIFY(line.source.startsWith(QLatin1String("ITU-T ")));
        QVERIFY(line.goodUpTo < line.fairUpTo);
    }
}

void tst_NetworkGrade::fixedLimits_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<int>("loss");
    QTest::addColumn<bool>("isPassed");
    QTest::newRow("499 ms") << 499 << 0 << true;
    QTest::newRow("500 ms") << 500 << 0 << false;
    QTest::newRow("not measured") << -1 << 0 << false;
    QTest::newRow("70 %") << 0 << 70 << true;
    QTest::newRow("71 %") << 0 << 71 << false;
}

void tst_NetworkGrade::fixedLimits()
{
    QFETCH(int, delay);
    QFETCH(int, loss);
    QTEST(Platform::NetworkLimits::arePassed(delay, loss), "isPassed");
}

QTEST_GUILESS_MAIN(tst_NetworkGrade)
#include "tst_NetworkGrade.moc"
