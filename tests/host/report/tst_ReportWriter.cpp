// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"
#include "host/report/Redaction.h"
#include "host/report/ReportTexts.h"
#include "host/report/ReportView.h"
#include "host/report/ReportWriter.h"
#include "host/report/TwinTexts.h"
#include "tests/host/report/SampleReport.h"

#include <QJsonArray>
#include <QXmlStreamReader>
#include <QtTest>

Q_DECLARE_METATYPE(SeenState)

class tst_ReportWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLanguageHasItsTwin_data();
    void everyLanguageHasItsTwin();
    void htmlIsWellFormedAndSelfContained();
    void foreignTextIsNoMarkup();
    void textHasNoControlCharacters();
    void textAndHtmlShowTheSame();
    void everyWordHasAText_data();
    void everyWordHasAText();
    void theThreeKindsReadDifferently();
    void soundPlayedAndPicked_data();
    void soundPlayedAndPicked();
    void verdictsAreMarked();
    void whatIsLeftOutHasNoRow();
    void pageBeginsWithWhatToDo();
    void printedTitleStaysWithItsTable();
    void plotsStandInThePageAlone();
    void badSeriesIsNoPlot();
    void formats_data();
    void formats();
};

namespace {

QString textOf(const Report& report, const QString& language)
{
    return ReportWriter::toText(report, TwinTexts(language));
}

QString htmlOf(const Report& report, const QString& language)
{
    return QString::fromUtf8(ReportWriter::toFormat(report, Options::Format::Html, language));
}

QString html(const QString& language)
{
    return htmlOf(sampleReport(), language);
}

// What a reader sees of a page, without its head.
QString visibleText(QString page)
{
    page.remove(QStringLiteral("<!DOCTYPE html>"));
    page.replace(QRegularExpression(QStringLiteral("<meta ([^>]*)>")),
                 QStringLiteral("<meta \\1/>"));
    QXmlStreamReader reader(page);
    QString text;
    bool isBody = false;
    while (!reader.atEnd()) {
        reader.readNext();
        isBody = isBody || (reader.isStartElement() && reader.name() == QLatin1String("body"));
        if (isBody && reader.isCharacters()) {
            text += reader.text() + QLatin1Char(' ');
        }
    }
    return reader.hasError() ? QString() : text.simplified();
}

// The sample with a course of the delay.
Report withSeries(const QJsonArray& values)
{
    Report report = sampleReport();
    report.checks.front().measurements.push_back(
        {QStringLiteral("delayOverTime"),
         FigureStatus::Measured,
         QJsonObject{{QStringLiteral("stepSeconds"), 1}, {QStringLiteral("values"), values}},
         {}});
    return report;
}

QString htmlOf(const Report& report, const char* language)
{
    return QString::fromUtf8(
        ReportWriter::toFormat(report, Options::Format::Html, QLatin1String(language)));
}

} // namespace

// No title is the last line of a printed page, and rows stay whole.
void tst_ReportWriter::printedTitleStaysWithItsTable()
{
    const QString page = htmlOf(sampleReport(), QStringLiteral("en"));
    const QString style = page.mid(page.indexOf(QLatin1String("@media print")));
    QVERIFY(style.contains(QLatin1String("summary{break-after:avoid}")));
    QVERIFY(style.contains(QLatin1String("tr,li{break-inside:avoid}")));
    QVERIFY(!style.contains(QLatin1String("table,")));
}

void tst_ReportWriter::plotsStandInThePageAlone()
{
    const Report report = withSeries({37, 912, QJsonValue(), 40});
    QCOMPARE(textOf(report, QStringLiteral("en")), textOf(sampleReport(), QStringLiteral("en")));
    const QString page = htmlOf(report, "en");
    QCOMPARE(page.count(QLatin1String("<svg")), 1);
    QVERIFY(page.contains(QStringLiteral("37 ms – 912 ms")));
    QVERIFY(!page.contains(QLatin1String("delayOverTime")));
    QVERIFY(!visibleText(page).isEmpty());
    // Folded, behind what is wrong.
    QVERIFY(page.indexOf(QLatin1String("<details")) < page.indexOf(QLatin1String("<svg")));
    // In Arabic the time goes to the left; in the English twin to the right.
    const QString arabic = htmlOf(report, "ar");
    QCOMPARE(arabic.count(QLatin1String("<svg")), 2);
    QVERIFY(arabic.contains(QLatin1String("d=\"M530.0 ")));
    QVERIFY(arabic.contains(QLatin1String("d=\"M70.0 ")));
    // Those after the verdict have the whole run.
    Report later = report;
    later.checks.front().later = {
        withSeries({1, 2, 3, 4, 5, 6}).checks.front().measurements.back()};
    QVERIFY(htmlOf(later, "en").contains(QLatin1String(">5 s<")));
    QCOMPARE(htmlOf(later, "en").count(QLatin1String("<svg")), 1);
}

void tst_ReportWriter::badSeriesIsNoPlot()
{
    const QString page = htmlOf(withSeries({1, QStringLiteral("</svg><script>")}), "en");
    QVERIFY(!page.contains(QLatin1String("<svg")));
    QVERIFY(!page.contains(QLatin1String("<script")));
    QVERIFY(page.contains(QLatin1String("&lt;/svg&gt;")));
}

void tst_ReportWriter::everyLanguageHasItsTwin_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : Languages::available()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_ReportWriter::everyLanguageHasItsTwin()
{
    QFETCH(QString, language);
    const QString title = ReportTexts(language).text("ID_Host_Report_Title");
    const QString twin = QStringLiteral("System check report (English, for support)");
    const bool isEnglish = language == QLatin1String("en");
    for (const QString& shown : {textOf(sampleReport(), language), html(language)}) {
        QVERIFY(shown.contains(title));
        QCOMPARE(shown.contains(twin), !isEnglish);
        QVERIFY2(!shown.contains(QLatin1String("ID_")), qPrintable(shown));
    }
    QCOMPARE(html(language).contains(QLatin1String("dir=\"rtl\"")),
             language == QLatin1String("ar"));
}

void tst_ReportWriter::htmlIsWellFormedAndSelfContained()
{
    const QString page = html(QStringLiteral("zh_CN"));
    QVERIFY(!visibleText(page).isEmpty());
    for (const char* word : {"<script", "src=", "href=", "url(", "@import", "http:", "https:"}) {
        QVERIFY2(!page.contains(QLatin1String(word)), word);
    }
    QVERIFY(page.contains(QLatin1String("default-src 'none'")));
    QVERIFY(page.contains(QLatin1String("lang=\"zh-CN\"")));
}

void tst_ReportWriter::foreignTextIsNoMarkup()
{
    const QString page = html(QStringLiteral("en"));
    QVERIFY(!page.contains(QLatin1String("<b>B")));
    QVERIFY(page.contains(QLatin1String("Robin &lt;b&gt;B&lt;/b&gt;")));
    QVERIFY(page.contains(
        QLatin1String("Robin's &lt;script&gt;alert(1)&lt;/script&gt; &amp; &quot;camera&quot;")));
}

void tst_ReportWriter::textHasNoControlCharacters()
{
    for (const QString& shown :
         {textOf(sampleReport(), QStringLiteral("en")), html(QStringLiteral("en"))}) {
        QVERIFY(!shown.contains(QChar(0x1B)));
        QVERIFY(shown.contains(QLatin1String("Mic [31m of Robin")));
    }
}

void tst_ReportWriter::textAndHtmlShowTheSame()
{
    const QString text = textOf(sampleReport(), QStringLiteral("de"));
    const QString page = visibleText(html(QStringLiteral("de")));
    const ReportView view = ReportView::of(sampleReport(), ReportTexts(QStringLiteral("de")));
    QVERIFY(view.sections.size() >= 7);
    for (const ReportView::Section& section : view.sections) {
        QVERIFY(text.contains(section.title) && page.contains(section.title));
        for (const ReportView::Row& row : section.rows) {
            const QString value = QString(row.value).remove(QChar(0x1B)).simplified();
            QVERIFY2(text.simplified().contains(row.caption + QLatin1Char(' ') + value) ||
                         value.contains(QLatin1String("[31m")),
                     qPrintable(row.caption));
            QVERIFY2(page.contains(row.caption + QLatin1Char(' ') + value) ||
                         value.contains(QLatin1String("[31m")),
                     qPrintable(row.caption));
        }
    }
}

// Each word of the enumeration is read as a text of the language.
template <typename Value>
void compareTexts(const ReportTexts& texts)
{
    for (const auto& each : ReportWords::table<Value>()) {
        const QString text = texts.of(each.value);
        QVERIFY2(!text.isEmpty() && text != QLatin1String(each.word) &&
                     !text.startsWith(QLatin1String("ID_")),
                 each.word);
    }
}

void tst_ReportWriter::everyWordHasAText_data()
{
    everyLanguageHasItsTwin_data();
}

void tst_ReportWriter::everyWordHasAText()
{
    QFETCH(QString, language);
    const ReportTexts texts(language);
    compareTexts<RunEnd>(texts);
    compareTexts<Verdict>(texts);
    compareTexts<Answer>(texts);
    compareTexts<FigureName>(texts);
    compareTexts<Contradiction>(texts);
    compareTexts<ChangedThing>(texts);
    compareTexts<Reason>(texts);
    compareTexts<Cause>(texts);
    for (const QString& word : ReportWords::all<Reason>()) {
        QCOMPARE(texts.reason(word), texts.of(*ReportWords::find<Reason>(word)));
    }
    QCOMPARE(texts.reason(QStringLiteral("<own words>")), QStringLiteral("<own words>"));
    QVERIFY(!texts.caption("ID_NetworkPage_Account").endsWith(QLatin1Char(':')));
    QVERIFY(!texts.caption("ID_NetworkPage_Account").endsWith(QChar(0xFF1A)));
}

void tst_ReportWriter::theThreeKindsReadDifferently()
{
    const QString text = textOf(sampleReport(), QStringLiteral("en")).simplified();
    QVERIFY(text.contains(QLatin1String("Picture rate 30/s")));
    QVERIFY(text.contains(QLatin1String("Brightness not measured: the engine does not record it")));
    QVERIFY(
        text.contains(QLatin1String("Picture width measuring failed: the device did not answer")));
    QVERIFY(text.contains(QLatin1String("Black pictures 75 %")));
    QVERIFY(text.contains(QLatin1String("lens Robin's lens")));
    QVERIFY(text.contains(QLatin1String("Measured later Packet loss: 84 %; lens: Robin's net")));
    QVERIFY(text.contains(QLatin1String("20 ms: good (good up to 150 ms, fair up to 400 ms; "
                                        "ITU-T G.114)")));
    QVERIFY(
        text.contains(QString::fromUtf8("Camera, Device Old camera of Robin \u2192 New camera")));
}

void tst_ReportWriter::soundPlayedAndPicked_data()
{
    QTest::addColumn<SeenState>("deviceState");
    QTest::addColumn<QString>("germanRow");
    QTest::addColumn<QString>("englishRow");
    QTest::newRow("right") << SeenState::Works << "Richtiges Geräusch gewählt Ja"
                           << "Right sound picked Yes";
    QTest::newRow("wrong") << SeenState::Fails << "Richtiges Geräusch gewählt Nein"
                           << "Right sound picked No";
    QTest::newRow("not asked") << SeenState::Unknown << "Richtiges Geräusch gewählt Keine Antwort"
                               << "Right sound picked No answer";
}

void tst_ReportWriter::soundPlayedAndPicked()
{
    QFETCH(SeenState, deviceState);
    QFETCH(QString, germanRow);
    QFETCH(QString, englishRow);
    Report report = sampleReport();
    report.checks[2].deviceState = deviceState;
    const QString german = QStringLiteral("de");
    for (const QString& shown :
         {textOf(report, german).simplified(), visibleText(htmlOf(report, german))}) {
        QVERIFY(shown.contains(QString::fromUtf8("Abgespieltes Geräusch Donner ") + germanRow));
        QVERIFY(shown.contains(QLatin1String("Sound played Thunder ") + englishRow));
        QCOMPARE(shown.count(QLatin1String("Right sound picked")), 1); // of the speaker alone
    }
}

void tst_ReportWriter::verdictsAreMarked()
{
    Report report = sampleReport();
    report.checks = {report.checks.back()};
    report.checks[0].measurements.clear();
    report.grade.reset();
    report.gradeLines.clear();
    const auto marks = [&report](Verdict verdict) {
        report.checks[0].verdict = verdict;
        return htmlOf(report, QStringLiteral("en")).count(QStringLiteral("class=\"bad\""));
    };
    const auto passed = marks(Verdict::Passed);
    QVERIFY(marks(Verdict::Failed) > passed);
    QCOMPARE(marks(Verdict::NotTested), passed);
}

void tst_ReportWriter::whatIsLeftOutHasNoRow()
{
    const Report report =
        Redaction(Options::Redaction::Personal, QByteArray()).redacted(sampleReport());
    const ReportView view = ReportView::of(report, ReportTexts(QStringLiteral("en")));
    QStringList captions;
    for (const ReportView::Section& section : view.sections) {
        for (const ReportView::Row& row : section.rows) {
            captions << row.caption;
            QVERIFY2(!row.value.isEmpty(), qPrintable(row.caption));
            QVERIFY2(!row.value.trimmed().startsWith(QChar(0x2192)), qPrintable(row.caption));
        }
    }
    QVERIFY(!captions.contains(QStringLiteral("lens")));
    QVERIFY(captions.contains(QStringLiteral("Picture rate")));
}

// What is wrong and what to do stands first; the rest is folded.
void tst_ReportWriter::pageBeginsWithWhatToDo()
{
    Report report = sampleReport();
    report.checks[1].verdict = Verdict::Failed;
    report.checks[1].causes = {Cause::Black};
    const QString page = htmlOf(report, QStringLiteral("en"));
    const auto remedy = page.indexOf(QLatin1String("open the lens cover"));
    const auto firstFold = page.indexOf(QLatin1String("<details>"));
    QVERIFY(remedy > 0 && remedy < firstFold);
    QVERIFY(remedy < page.indexOf(QLatin1String(">Time<")));
    QCOMPARE(page.count(QLatin1String("<details>")), 6); // changes, machine, four checks
    QCOMPARE(page.count(QLatin1String("<h2>")), 1);
    QVERIFY(page.contains(QLatin1String("prefers-color-scheme:dark")));
}

void tst_ReportWriter::formats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("format");
    QTest::newRow("json") << "a.json" << static_cast<int>(Options::Format::Json);
    QTest::newRow("html") << "a.html" << static_cast<int>(Options::Format::Html);
    QTest::newRow("HTM") << "a.HTM" << static_cast<int>(Options::Format::Html);
    QTest::newRow("txt") << "a.b.txt" << static_cast<int>(Options::Format::Text);
    QTest::newRow("none") << "report" << static_cast<int>(Options::Format::Json);
}

void tst_ReportWriter::formats()
{
    QFETCH(QString, name);
    QTEST(static_cast<int>(ReportWriter::formatOf(name)), "format");
}

QTEST_GUILESS_MAIN(tst_ReportWriter)
#include "tst_ReportWriter.moc"
