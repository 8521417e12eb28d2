// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"
#include "host/report/Redaction.h"
#include "host/report/ReportJson.h"
#include "host/report/ReportWriter.h"
#include "tests/host/report/SampleReport.h"

#include <QJsonArray>
#include <QtTest>

class tst_Redaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noneChangesNothing();
    void nothingOfAPersonIsLeft_data();
    void nothingOfAPersonIsLeft();
    void whatSaysNothingOfAPersonStays_data();
    void whatSaysNothingOfAPersonStays();
    void seriesStay();
    void equalTextsHaveEqualCodes();
    void keyIsMadeForHashOnly_data();
    void keyIsMadeForHashOnly();
    void saysWhyThereIsNoKey();
    void noFileIsBelieved_data();
    void noFileIsBelieved();
    void onlyKnownWordsStay();
    void whatIsGoneStaysGone();
};

namespace {

const QByteArray Key("a key of thirty-two bytes or more");

Report redacted(Options::Redaction level, const QByteArray& key = Key)
{
    return Redaction(level, key).redacted(sampleReport());
}

void addLevels()
{
    QTest::addColumn<Options::Redaction>("level");
    QTest::newRow("personal") << Options::Redaction::Personal;
    QTest::newRow("hash") << Options::Redaction::Hash;
}

} // namespace

Q_DECLARE_METATYPE(Options::Redaction)

void tst_Redaction::noneChangesNothing()
{
    QCOMPARE(ReportJson::toJson(redacted(Options::Redaction::None)),
             ReportJson::toJson(sampleReport()));
}

void tst_Redaction::nothingOfAPersonIsLeft_data()
{
    addLevels();
}

void tst_Redaction::nothingOfAPersonIsLeft()
{
    QFETCH(Options::Redaction, level);
    const Report report = redacted(level);
    for (const Options::Format format :
         {Options::Format::Json, Options::Format::Text, Options::Format::Html}) {
        const QString shown =
            QString::fromUtf8(ReportWriter::toFormat(report, format, QStringLiteral("de")));
        for (const char* word : {"obin", "192.0.2.7", "stun.example", "edge-1", "alert(1)"}) {
            QVERIFY2(!shown.contains(QLatin1String(word)), word);
        }
    }
}

void tst_Redaction::whatSaysNothingOfAPersonStays_data()
{
    addLevels();
}

void tst_Redaction::whatSaysNothingOfAPersonStays()
{
    QFETCH(Options::Redaction, level);
    const Report before = sampleReport();
    const Report report = redacted(level);
    QCOMPARE(report.outcome, before.outcome);
    QCOMPARE(report.grade, before.grade);
    QCOMPARE(report.facts.value(QStringLiteral("operatingSystem")),
             before.facts.value(QStringLiteral("operatingSystem")));
    const ReportCheck* camera = report.check(CheckKind::Camera);
    QCOMPARE(camera->measurement(QStringLiteral("rate"))->value.toDouble(), 29.97);
    QCOMPARE(camera->measurement(QStringLiteral("width"))->reason, QStringLiteral("hung"));
    QCOMPARE(camera->contradictions, before.check(CheckKind::Camera)->contradictions);
    QCOMPARE(report.changes.at(1).before, QStringLiteral("good"));
}

// But for what somebody hid in them.
void tst_Redaction::seriesStay()
{
    const QString key = QStringLiteral("delayOverTime");
    const auto series = [](const QJsonValue& value) {
        return QJsonObject{{QStringLiteral("stepSeconds"), 1},
                           {QStringLiteral("values"), QJsonArray{value, QJsonValue()}}};
    };
    QJsonObject padded = series(37);
    padded.insert(QStringLiteral("who"), QStringLiteral("Robin"));
    const Redaction redaction(Options::Redaction::Personal, {});
    Report report = sampleReport();
    std::vector<Measurement>& measurements = report.checks.front().measurements;
    measurements.push_back({key, FigureStatus::Measured, padded, {}});
    QCOMPARE(redaction.redacted(report).checks.front().measurements.back().value,
             QJsonValue(series(37)));
    measurements.back().value = series(QStringLiteral("Robin"));
    QCOMPARE(redaction.redacted(report).checks.front().measurements.back().value,
             QJsonValue(QString()));
    const QJsonObject document{
        {QStringLiteral("measurements"),
         QJsonObject{{QStringLiteral("network"), QJsonObject{{key, padded}}}}}};
    QCOMPARE(redaction.redactedResults(document).value(
                 QStringLiteral("measurements"))[QStringLiteral("network")][key],
             QJsonValue(series(37)));
}

void tst_Redaction::equalTextsHaveEqualCodes()
{
    const auto account = [](const Report& report) {
        return report.facts.value(QStringLiteral("account")).toString();
    };
    const Report report = redacted(Options::Redaction::Hash);
    QVERIFY(
        QRegularExpression(QStringLiteral("^#[0-9a-f]{12}$")).match(account(report)).hasMatch());
    QCOMPARE(account(report), account(redacted(Options::Redaction::Hash)));
    QVERIFY(account(report) != report.facts.value(QStringLiteral("nickname")).toString());
    QVERIFY(account(report) != account(redacted(Options::Redaction::Hash, "another key")));
}

void tst_Redaction::keyIsMadeForHashOnly_data()
{
    QTest::addColumn<Options::Redaction>("level");
    QTest::addColumn<bool>("needsKey");
    QTest::newRow("none") << Options::Redaction::None << false;
    QTest::newRow("personal") << Options::Redaction::Personal << false;
    QTest::newRow("hash") << Options::Redaction::Hash << true;
}

void tst_Redaction::keyIsMadeForHashOnly()
{
    QFETCH(Options::Redaction, level);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("key"));
    QString problem;
    const std::optional<Redaction> first = Redaction::withKeyIn(file, level, &problem);
    QVERIFY2(first, qPrintable(problem));
    QTEST(QFileInfo::exists(file), "needsKey");
    const std::optional<Redaction> second = Redaction::withKeyIn(file, level, &problem);
    QVERIFY2(second, qPrintable(problem));
    QCOMPARE(ReportJson::toJson(first->redacted(sampleReport())),
             ReportJson::toJson(second->redacted(sampleReport())));
}

void tst_Redaction::saysWhyThereIsNoKey()
{
    Languages languages;
    QCOMPARE(languages.use(QStringLiteral("en")), QString());
    const QTemporaryDir folder; // is no file
    QString problem;
    QVERIFY(!Redaction::withKeyIn(folder.path(), Options::Redaction::Hash, &problem));
    QVERIFY2(problem.contains(folder.path()), qPrintable(problem));
    QVERIFY(Redaction::withKeyIn(folder.path(), Options::Redaction::Personal, &problem));
}

void tst_Redaction::noFileIsBelieved_data()
{
    QTest::addColumn<Options::Redaction>("level");
    QTest::addColumn<Options::Redaction>("claim");
    const std::pair<const char*, Options::Redaction> levels[] = {
        {"personal", Options::Redaction::Personal}, {"hash", Options::Redaction::Hash}};
    for (const auto& [level, redaction] : levels) {
        for (const auto& [claim, claimed] : levels) {
            QTest::addRow("%s of %s", level, claim) << redaction << claimed;
        }
    }
}

void tst_Redaction::noFileIsBelieved()
{
    QFETCH(Options::Redaction, level);
    QFETCH(Options::Redaction, claim);
    Report report = sampleReport();
    report.redaction = claim;
    QCOMPARE(ReportJson::toJson(Redaction(level, Key).redacted(report)),
             ReportJson::toJson(redacted(level)));
}

// A word of a report stays because it says nothing of a person; the file may have other words.
void tst_Redaction::onlyKnownWordsStay()
{
    const QString name = QStringLiteral("Robin");
    Report report = sampleReport();
    report.changes.clear();
    for (const ChangedThing what :
         {ChangedThing::Verdict, ChangedThing::Grade, ChangedThing::Delay}) {
        report.changes.push_back({ChangeSubject::Network, what, name, name});
    }
    report.checks[2].measurements = {
        {QStringLiteral("soundPlayed"), FigureStatus::Measured, name, {}}};
    const Report result = Redaction(Options::Redaction::Personal, Key).redacted(report);
    for (const ReportChange& change : result.changes) {
        QCOMPARE(change.before + change.now, QString());
    }
    QCOMPARE(result.checks[2].measurements[0].value.toString(), QString());
}

void tst_Redaction::whatIsGoneStaysGone()
{
    const Report personal = redacted(Options::Redaction::Personal);
    const Redaction hash(Options::Redaction::Hash, Key);
    Report again = hash.redacted(personal);
    again.redaction = personal.redaction;
    QCOMPARE(ReportJson::toJson(again), ReportJson::toJson(personal)); // there is nothing to hash
    const Report codes = redacted(Options::Redaction::Hash);
    QCOMPARE(Redaction(Options::Redaction::Personal, Key).redacted(codes).redaction,
             Options::Redaction::Personal);
    QCOMPARE(Redaction(Options::Redaction::None, Key).redacted(personal).redaction,
             Options::Redaction::Personal);
}

QTEST_GUILESS_MAIN(tst_Redaction)
#include "tst_Redaction.moc"
