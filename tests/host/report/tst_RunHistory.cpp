// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/report/RunHistory.h"
#include "platform/backend/FileWriter.h"
#include "tests/host/report/SampleReport.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_RunHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void noFileNoComparison();
    void aLineForEachRun();
    void lastGoodRunCounts();
    void whatChanged();
    void smallDelaysDontCount_data();
    void smallDelaysDontCount();
    void unreadableLinesAreLeftAlone();
    void oldRunsGo();

private:
    void append(const Report& report);
    QByteArray content() const;
    Report compared(Report report) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

namespace {

Report withDelay(int ms)
{
    Report report = sampleReport();
    report.checks[0].measurements[0].value = ms;
    return report;
}

} // namespace

void tst_RunHistory::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("runs.jsonl"));
}

void tst_RunHistory::append(const Report& report)
{
    RunHistory(m_path).append(report, QStringLiteral("/a/report.json"));
    QVERIFY(Platform::FileWriter::waitForWritten(5000));
}

QByteArray tst_RunHistory::content() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Report tst_RunHistory::compared(Report report) const
{
    RunHistory(m_path).compare(report);
    return report;
}

void tst_RunHistory::noFileNoComparison()
{
    const Report report = compared(sampleReport());
    QVERIFY(!report.lastGoodRun);
    QVERIFY(report.changes.empty());
}

void tst_RunHistory::aLineForEachRun()
{
    append(sampleReport());
    append(sampleReport());
    QCOMPARE(content().count('\n'), 2);
    QVERIFY(content().endsWith('\n'));
    QVERIFY(content().contains("/a/report.json"));
}

void tst_RunHistory::lastGoodRunCounts()
{
    Report good = sampleReport();
    good.finished = QDateTime(QDate(2026, 1, 1), QTime(10, 0), Qt::UTC);
    append(good);
    good.finished = QDateTime(QDate(2026, 1, 2), QTime(10, 0), Qt::UTC);
    append(good);
    Report later = good;
    later.finished = QDateTime(QDate(2026, 1, 3), QTime(10, 0), Qt::UTC);
    later.outcome = RunEnd::Failed;
    append(later);
    later.outcome = RunEnd::Passed;
    later.platform = Options::Platform::Scripted;
    append(later);
    const Report report = compared(sampleReport());
    QCOMPARE(report.lastGoodRun, std::optional<QDateTime>(good.finished));
    QVERIFY(report.changes.empty());
}

void tst_RunHistory::whatChanged()
{
    append(sampleReport());
    Report now = withDelay(400);
    now.grade = NetworkGrade::Level::Poor;
    now.checks[0].verdict = Verdict::Failed;
    now.checks[1].device = QStringLiteral("Another camera");
    now.facts.insert(QStringLiteral("operatingSystem"), QStringLiteral("Debian GNU/Linux 13"));
    now.facts.remove(QStringLiteral("server"));
    QStringList lines;
    for (const ReportChange& change : compared(now).changes) {
        lines << QStringList{ReportWords::of(change.subject), ReportWords::of(change.what),
                             change.before, change.now}
                     .join(QLatin1Char('|'));
    }
    QCOMPARE(lines.join(QLatin1Char('\n')),
             QStringLiteral("system|operatingSystem|Debian GNU/Linux 12|Debian GNU/Linux 13\n"
                            "network|verdict|passed|failed\n"
                            "network|grade|fair|poor\n"
                            "network|delayMs|40|400\n"
                            "camera|device|Robin's <script>alert(1)</script> & \"camera\"|Another "
                            "camera"));
}

void tst_RunHistory::smallDelaysDontCount_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("now");
    QTest::addColumn<bool>("counts");
    QTest::newRow("50 ms more") << 40 << 90 << false;
    QTest::newRow("51 ms more") << 40 << 91 << true;
    QTest::newRow("51 ms less") << 91 << 40 << true;
    QTest::newRow("less than half") << 400 << 600 << false;
    QTest::newRow("more than half") << 400 << 601 << true;
}

void tst_RunHistory::smallDelaysDontCount()
{
    QFETCH(int, before);
    QFETCH(int, now);
    append(withDelay(before));
    QTEST(!compared(withDelay(now)).changes.empty(), "counts");
}

void tst_RunHistory::unreadableLinesAreLeftAlone()
{
    append(sampleReport());
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::Append));
    file.write("no JSON at all\n{\"outcome\": \"passed\"}\nhalf a li");
    file.close();
    append(sampleReport());
    QCOMPARE(content().count('\n'), 5);
    QVERIFY(content().contains("\nhalf a li\n{"));
    QVERIFY(compared(sampleReport()).lastGoodRun);
}

void tst_RunHistory::oldRunsGo()
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (int i = 0; i < RunHistory::MaxRuns; ++i) {
        file.write(QByteArray("{\"n\": ") + QByteArray::number(i) + "}\n");
    }
    file.close();
    append(sampleReport());
    QCOMPARE(content().count('\n'), RunHistory::MaxRuns);
    QVERIFY(content().startsWith("{\"n\": 1}\n"));
}

QTEST_GUILESS_MAIN(tst_RunHistory)
#include "tst_RunHistory.moc"
