// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"
#include "host/report/Remedies.h"
#include "host/report/ReportWriter.h"
#include "host/report/TwinTexts.h"
#include "platform/backend/NetworkProbe.h"
#include "tests/host/report/SampleReport.h"

#include <QSet>
#include <QtTest>

class tst_Remedies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void network_data();
    void network();
    void networkLeftTooSoon();
    void devices_data();
    void devices();
    void noSpeaker();
    void onlyFailuresHaveCauses();
    void enginesWordsAreKnown_data();
    void enginesWordsAreKnown();
    void everySentenceIsItsOwn_data();
    void everySentenceIsItsOwn();
    void terminalAndReportSayTheSame();
    void severalDevicesAreNamed();
    void nothingToSay();

private:
    Languages m_languages;
};

namespace {

QString id(const char* text)
{
    return QString::fromUtf8(text);
}

QString words(const std::vector<Cause>& causes)
{
    QStringList list;
    for (const Cause cause : causes) {
        list << ReportWords::of(cause);
    }
    return list.join(QLatin1Char(' '));
}

QJsonObject figures(const char* key, const QJsonValue& value)
{
    return {{id(key), value}};
}

ReportCheck failedCheck(CheckKind kind, Answer answer, SeenState state)
{
    ReportCheck check;
    check.kind = kind;
    check.verdict = Verdict::Failed;
    check.answer = answer;
    check.deviceState = state;
    return check;
}

} // namespace

void tst_Remedies::initTestCase()
{
    QCOMPARE(m_languages.use(id("en")), QString());
}

void tst_Remedies::network_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<int>("loss");
    QTest::addColumn<int>("problem");
    QTest::addColumn<bool>("isPassed");
    QTest::addColumn<QString>("causes");
    const auto none = static_cast<int>(Platform::NetworkProblem::None);
    const auto noServer = static_cast<int>(Platform::NetworkProblem::NoServer);
    const auto noHost = static_cast<int>(Platform::NetworkProblem::NoSuchHost);
    QTest::newRow("good") << 37 << 1 << none << true << "";
    QTest::newRow("slow") << 500 << 0 << none << false << "slow";
    QTest::newRow("lossy") << 37 << 71 << none << false << "lossy";
    QTest::newRow("both") << 912 << 84 << none << false << "slow lossy";
    QTest::newRow("no answer") << -1 << 100 << none << false << "noAnswer";
    QTest::newRow("no such host") << -1 << 100 << noHost << false << "noSuchHost";
    QTest::newRow("no server, passed") << 0 << 0 << noServer << true << "noServer";
    QTest::newRow("no server, failed") << -1 << 100 << noServer << false << "noServer";
    QTest::newRow("host went away, but passed before") << 37 << 1 << noHost << true << "";
}

void tst_Remedies::network()
{
    QFETCH(int, delay);
    QFETCH(int, loss);
    QFETCH(int, problem);
    QFETCH(bool, isPassed);
    Platform::NetworkFigures measured{loss, delay};
    measured.problem = static_cast<Platform::NetworkProblem>(problem);
    ReportCheck check = failedCheck(CheckKind::Network, Answer::None, SeenState::Unknown);
    check.verdict = isPassed ? Verdict::Passed : Verdict::Failed;
    QTEST(words(Remedies::causesOf(check, Platform::toJson(measured))), "causes");
}

void tst_Remedies::networkLeftTooSoon()
{
    const ReportCheck check = failedCheck(CheckKind::Network, Answer::None, SeenState::Unknown);
    QCOMPARE(words(Remedies::causesOf(check, {})), id("leftTooSoon"));
}

void tst_Remedies::devices_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isYes");
    QTest::addColumn<bool>("works");
    QTest::addColumn<QJsonObject>("figures");
    QTest::addColumn<QString>("causes");
    const auto row = [](const char* title, CheckKind kind, bool isYes, bool works,
                        const QJsonObject& figures, const char* causes) {
        QTest::newRow(title) << static_cast<int>(kind) << isYes << works << figures << id(causes);
    };
    const QJsonObject nothing;
    row("camera, no", CheckKind::Camera, false, true, nothing, "notSeen");
    row("camera, yes without frames", CheckKind::Camera, true, false, nothing, "stalled");
    row("camera, black", CheckKind::Camera, false, true, figures("blackShare", 0.9), "black");
    row("camera, a little black", CheckKind::Camera, false, true, figures("blackShare", 0.1),
        "notSeen");
    row("camera, frozen", CheckKind::Camera, false, true, figures("frozenShare", 0.9), "frozen");
    row("camera, silent", CheckKind::Camera, false, false, figures("state", id("silent")),
        "stalled");
    row("camera, absent", CheckKind::Camera, false, false, figures("state", id("absent")),
        "absent");
    row("camera, works", CheckKind::Camera, false, true, figures("state", id("working")),
        "notSeen");
    row("camera, the cause goes before the state", CheckKind::Camera, false, false,
        {{id("cause"), id("unplugged")}, {id("state"), id("absent")}}, "unplugged");
    row("camera, black by both", CheckKind::Camera, false, true,
        {{id("cause"), id("black")}, {id("blackShare"), 1}}, "black");
    row("speaker, no", CheckKind::Speaker, false, true, nothing, "notHeard");
    row("speaker, wrong sound", CheckKind::Speaker, true, false, nothing, "wrongSound");
    row("speaker, muted", CheckKind::Speaker, false, false, figures("mutedAfter", true), "muted");
    row("speaker, volume 0", CheckKind::Speaker, false, false, figures("volumeAfter", 0),
        "volumeZero");
    row("speaker, muted at 0", CheckKind::Speaker, false, false,
        {{id("mutedAfter"), true}, {id("volumeAfter"), 0}}, "muted");
    row("speaker, off", CheckKind::Speaker, false, false, figures("state", id("off")), "off");
    row("microphone, no", CheckKind::Microphone, false, true, nothing, "selfNotHeard");
    row("microphone, silent", CheckKind::Microphone, false, false, nothing, "silent");
    row("microphone, silent and muted", CheckKind::Microphone, false, false,
        {{id("state"), id("silent")}, {id("mutedAfter"), true}}, "silent muted");
    row("microphone, denied", CheckKind::Microphone, false, false, figures("state", id("denied")),
        "denied");
}

void tst_Remedies::devices()
{
    QFETCH(int, kind);
    QFETCH(bool, isYes);
    QFETCH(bool, works);
    QFETCH(QJsonObject, figures);
    const ReportCheck check =
        failedCheck(static_cast<CheckKind>(kind), isYes ? Answer::Yes : Answer::No,
                    works ? SeenState::Works : SeenState::Fails);
    QTEST(words(Remedies::causesOf(check, figures)), "causes");
}

void tst_Remedies::noSpeaker()
{
    ReportCheck check = failedCheck(CheckKind::Speaker, Answer::No, SeenState::Fails);
    check.device = qtTrId("ID_Engine_NoSpeaker");
    QCOMPARE(words(Remedies::causesOf(check, figures("volumeAfter", 0))), id("absent"));
    for (const QString& server : {id("serverLost"), id("serverSilent"), id("notBuilt")}) {
        QCOMPARE(words(Remedies::causesOf(check, figures("state", server))), server);
    }
}

void tst_Remedies::onlyFailuresHaveCauses()
{
    for (const Verdict verdict : {Verdict::Passed, Verdict::NotTested}) {
        for (const CheckKind kind :
             {CheckKind::Network, CheckKind::Camera, CheckKind::Speaker, CheckKind::Microphone}) {
            ReportCheck check = failedCheck(kind, Answer::None, SeenState::Fails);
            check.verdict = verdict;
            QCOMPARE(words(Remedies::causesOf(check, figures("state", id("absent")))), QString());
        }
    }
}

void tst_Remedies::enginesWordsAreKnown_data()
{
    QTest::addColumn<QString>("word");
    for (const char* word : {"starting", "busy", "denied", "hung", "stalled", "black", "unplugged",
                             "serverLost", "serverSilent", "failed", "unreadable", "notBuilt"}) {
        QTest::newRow(word) << id(word);
    }
}

void tst_Remedies::enginesWordsAreKnown()
{
    QFETCH(QString, word);
    const ReportCheck check = failedCheck(CheckKind::Camera, Answer::No, SeenState::Fails);
    QCOMPARE(words(Remedies::causesOf(check, {{id("cause"), word}})), word);
}

void tst_Remedies::everySentenceIsItsOwn_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : Languages::available()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_Remedies::everySentenceIsItsOwn()
{
    QFETCH(QString, language);
    QTranslator texts;
    QVERIFY(Languages::load(texts, language));
    QSet<QString> sentences;
    for (const auto& each : ReportWords::table<Cause>()) {
        const QString sentence = texts.translate(nullptr, each.textId);
        QVERIFY2(sentence.size() > 9, each.textId);
        QVERIFY2(!sentences.contains(sentence), each.textId);
        sentences.insert(sentence);
    }
}

void tst_Remedies::terminalAndReportSayTheSame()
{
    Report report = sampleReport();
    report.checks[0].causes = {Cause::NoServer};
    report.checks[2].causes = {Cause::Muted, Cause::WrongSound};
    const QString terminal = Remedies::toText(report);
    QCOMPARE(terminal.count(QLatin1Char('\n')), 4);
    QVERIFY(terminal.startsWith(id("What to do:\n  System: ")));
    const TwinTexts texts(id("en"));
    const QString text = ReportWriter::toText(report, texts);
    const QString html = ReportWriter::htmlOf(report, texts);
    for (const Remedies::Remedy& remedy : Remedies::of(report)) {
        const QString sentence = qtTrId(ReportWords::textId(remedy.cause));
        QVERIFY2(terminal.contains(sentence), qPrintable(terminal));
        QCOMPARE(text.count(sentence), 2); // in the summary and at the check
        QCOMPARE(html.count(sentence), 2);
    }
}

// Without a person, every device of a kind is checked.
void tst_Remedies::severalDevicesAreNamed()
{
    Report report = sampleReport();
    report.checks[1].device = id("Front \u202E<b>");
    report.checks[1].causes = {Cause::Black};
    QVERIFY(!Remedies::toText(report).contains(id("Front")));
    report.checks.insert(report.checks.begin() + 2, report.checks[1]);
    report.checks[2].device = id("Back");
    const QString terminal = Remedies::toText(report);
    QVERIFY2(terminal.contains(id("  Camera: Back: ")), qPrintable(terminal));
    QVERIFY2(terminal.contains(id("  Camera: Front ")), qPrintable(terminal));
    QVERIFY(!terminal.contains(QChar(0x202E)));
    const QString html = ReportWriter::htmlOf(report, TwinTexts(id("en")));
    QCOMPARE(html.count(id("Camera: Back")), 4); // remedy, verdict, contradiction, section
    QVERIFY(!html.contains(id("<b>")));
}

void tst_Remedies::nothingToSay()
{
    QCOMPARE(Remedies::toText(sampleReport()), QString());
    QVERIFY(!ReportWriter::toText(sampleReport(), TwinTexts(id("en"))).contains(id("What to do")));
}

QTEST_GUILESS_MAIN(tst_Remedies)
#include "tst_Remedies.moc"
