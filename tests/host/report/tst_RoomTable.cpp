// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/report/ReportOutput.h"
#include "host/report/RoomRow.h"
#include "tests/host/report/SampleReport.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

// What a room of computers looks like, in each format that shows many reports.
class tst_RoomTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameOfTheComputer();
    void badness();
    void withoutPerson();
    void table();
    void nothingToShow_data();
    void nothingToShow();
    void csv();
    void lines();
    void map();
};

namespace {

Report failedReport()
{
    Report report = sampleReport();
    report.facts.insert(QStringLiteral("computer"), QStringLiteral("pc-17"));
    report.checks[1].verdict = Verdict::Failed;
    report.checks[1].causes = {Cause::Busy};
    report.checks[1].device = QStringLiteral("A camera with a very long name indeed");
    return report;
}

Report bareReport()
{
    Report report = sampleReport();
    report.redaction = Options::Redaction::Personal;
    report.facts = {};
    report.checks.clear();
    report.grade.reset();
    return report;
}

QString shown(Options::Format format, const std::vector<Report>& reports)
{
    QString text;
    const auto output = ReportOutput::create(format, QStringLiteral("en"), reports.size() > 1,
                                             [&text](const QString& more) { text += more; });
    for (std::size_t i = 0; i < reports.size(); ++i) {
        output->add(reports[i], QStringLiteral("seat-%1").arg(i + 1));
    }
    output->finish();
    return text;
}

} // namespace

void tst_RoomTable::nameOfTheComputer()
{
    QCOMPARE(RoomRow::of(failedReport(), QStringLiteral("seat-1")).computer,
             QStringLiteral("pc-17"));
    QCOMPARE(RoomRow::of(sampleReport(), QStringLiteral("seat-1")).computer,
             QStringLiteral("seat-1"));
}

void tst_RoomTable::badness()
{
    const auto of = [](const Report& report) { return RoomRow::of(report, QString()).badness(); };
    Report good = sampleReport();
    good.grade.reset();
    good.checks[1].contradictions.clear();
    QCOMPARE(of(good), 0);
    Report flagged = good;
    flagged.checks[1].contradictions = {Contradiction::YesToBlackPicture};
    Report untested = good;
    for (ReportCheck& check : untested.checks) {
        check.verdict = Verdict::NotTested;
    }
    Report failed = good;
    failed.checks[0].verdict = Verdict::Failed;
    QVERIFY(of(good) < of(sampleReport()));
    QVERIFY(of(flagged) < of(untested));
    QVERIFY(of(untested) < of(failed));
}

// One check for each device: the one that doesn't work counts, and its verdict has a column.
void tst_RoomTable::withoutPerson()
{
    Report report = sampleReport();
    report.outcome = RunEnd::Faulty;
    for (ReportCheck& check : report.checks) {
        check.verdict = Verdict::Works;
        check.causes.clear();
        check.contradictions.clear();
    }
    ReportCheck broken;
    broken.kind = CheckKind::Camera;
    broken.verdict = Verdict::Faulty;
    broken.device = QStringLiteral("Second camera");
    broken.causes = {Cause::Black};
    report.checks.push_back(broken);
    const RoomRow row = RoomRow::of(report, {});
    QCOMPARE(row.checks[1].verdict, Verdict::Faulty);
    QCOMPARE(row.checks[1].device, broken.device);
    QCOMPARE(row.causes(), QStringLiteral("camera:black"));
    QVERIFY(row.badness() > RoomRow::of(bareReport(), {}).badness());
    const QStringList lines =
        shown(Options::Format::Room, {failedReport(), report}).split(QLatin1Char('\n'));
    QCOMPARE(lines.filter(QStringLiteral("Camera ")).last().simplified(),
             QStringLiteral("Camera 0 1 0 0 1"));
    const QString map = shown(Options::Format::Map, {report});
    QVERIFY(map.contains(QLatin1String("<li class=\"bad\">")));
    QVERIFY(map.contains(QLatin1String("Second camera")));
    const QString text = shown(Options::Format::Text, {report});
    QVERIFY2(text.contains(QLatin1String("Unattended: something needs fixing")), qPrintable(text));
    QVERIFY2(!text.contains(QLatin1String("Answer")), qPrintable(text));
    QVERIFY(shown(Options::Format::Csv, {report}).contains(QLatin1String(",faulty,works,faulty,")));
}

void tst_RoomTable::table()
{
    const QStringList lines =
        shown(Options::Format::Room, {sampleReport(), bareReport(), failedReport()})
            .split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 12);
    QVERIFY2(lines.at(0).startsWith(QLatin1String("Computer  Time ")), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(0).endsWith(QLatin1String("Causes")), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).startsWith(QLatin1String("pc-17 ")), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(1).contains(QStringLiteral("Failed (A camera with a very lo\u2026)")),
             qPrintable(lines.at(1)));
    QVERIFY2(lines.at(1).contains(QLatin1String("40 ms")), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(1).endsWith(QLatin1String("camera:busy")), qPrintable(lines.at(1)));
    QVERIFY(lines.at(2).startsWith(QLatin1String("seat-2 ")));
    QVERIFY(lines.at(3).startsWith(QLatin1String("seat-1 ")));
    QCOMPARE(lines.at(5), QStringLiteral("Reports: 3"));
    QCOMPARE(lines.at(8).simplified(), QStringLiteral("Camera 1 1 1"));
}

void tst_RoomTable::nothingToShow_data()
{
    QTest::addColumn<int>("format");
    for (int format = 0; format <= static_cast<int>(Options::Format::Map); ++format) {
        QTest::newRow(qPrintable(QString::number(format))) << format;
    }
}

void tst_RoomTable::nothingToShow()
{
    QFETCH(int, format);
    QCOMPARE(shown(static_cast<Options::Format>(format), {}), QString());
}

void tst_RoomTable::csv()
{
    Report report = failedReport();
    report.facts.insert(QStringLiteral("account"), QStringLiteral("=HYPERLINK(\"http://x\")"));
    const QStringList lines =
        shown(Options::Format::Csv, {report, sampleReport()}).split(QStringLiteral("\r\n"));
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.at(0).startsWith(QLatin1String("id,finished,computer,account,outcome,network,")));
    QVERIFY2(lines.at(1).contains(QLatin1String(",2026-03-01T08:33:20.250Z,pc-17,"
                                                "\"'=HYPERLINK(\"\"http://x\"\")\",passed,")),
             qPrintable(lines.at(1)));
    QVERIFY(lines.at(1).contains(QLatin1String(",40,3,2,fair,camera:busy,1,")));
    QVERIFY(lines.at(2).contains(QLatin1String(",seat-2,")));
    QCOMPARE(lines.at(3), QString());
}

void tst_RoomTable::lines()
{
    const QStringList lines =
        shown(Options::Format::Lines, {failedReport(), bareReport()}).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    const QJsonObject first = QJsonDocument::fromJson(lines.at(0).toUtf8()).object();
    QCOMPARE(first.value(QStringLiteral("camera")).toString(), QStringLiteral("failed"));
    QCOMPARE(first.value(QStringLiteral("delay_ms")).toDouble(), 40.0);
    const QJsonObject second = QJsonDocument::fromJson(lines.at(1).toUtf8()).object();
    QCOMPARE(second.value(QStringLiteral("computer")).toString(), QStringLiteral("seat-2"));
    QVERIFY(second.value(QStringLiteral("delay_ms")).isNull());
    QCOMPARE(second.keys(), first.keys());
}

void tst_RoomTable::map()
{
    Report report = failedReport();
    report.facts.insert(QStringLiteral("computer"), QStringLiteral("<b>pc</b>"));
    const QString page = shown(Options::Format::Map, {sampleReport(), report});
    QVERIFY(page.startsWith(QLatin1String("<!DOCTYPE html>")));
    QVERIFY(page.endsWith(QLatin1String("</html>\n")));
    QCOMPARE(page.count(QLatin1String("<li class=")), 2);
    const auto bad = page.indexOf(QLatin1String("<li class=\"bad\">"));
    QVERIFY(bad > 0 && bad < page.indexOf(QLatin1String("<li class=\"good\">")));
    QVERIFY(page.contains(QLatin1String("&lt;b&gt;pc&lt;/b&gt;")));
    QVERIFY(page.contains(QLatin1String("Another program is using the device")));
    QVERIFY(!page.contains(QLatin1String("<script")));
    QVERIFY(!page.contains(QLatin1String("ID_")));
}

QTEST_GUILESS_MAIN(tst_RoomTable)
#include "tst_RoomTable.moc"
