// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"
#include "host/OutcomeWindow.h"
#include "host/commands/CheckCommand.h"
#include "host/report/ReportFile.h"
#include "host/report/ReportWriter.h"
#include "host/report/RunOutcome.h"
#include "host/report/TwinTexts.h"
#include "platform/backend/FileWriter.h"
#include "tests/host/report/SampleReport.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

// The window, driven by keys and clicks.
class tst_OutcomeWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void saysOutcomeCausesAndRemedies();
    void foreignTextIsPlain();
    void escapeAndButtonClose();
    void everythingByKeyboard();
    void copies();
    void saves_data();
    void saves();
    void placeThatCannotBeWritten();
    void opens();
    void nothingOpensIt();
    void closedWhileWriting();
    void isOpenedForUsers_data();
    void isOpenedForUsers();

public Q_SLOTS:
    void takeUrl(const QUrl& url) { m_opened = url; } // called by QDesktopServices

private:
    template <typename Widget>
    Widget* find(const char* name) const;
    void click(const char* name) const;
    QString message() const { return find<QLabel>("messageLabel")->text(); }
    QFileDialog* fileDialog() const { return m_window->findChild<QFileDialog*>(); }
    void chooseFile(const QString& path);

    Languages m_languages;
    QTemporaryDir m_folder;
    Report m_report;
    std::unique_ptr<OutcomeWindow> m_window;
    QUrl m_opened;
};

namespace {

QString id(const char* text)
{
    return QString::fromUtf8(text);
}

QString withoutBreaks(QString text)
{
    return text.remove(QChar(0x200B));
}

Report failedReport()
{
    Report report = sampleReport();
    report.outcome = RunEnd::Failed;
    report.checks[0].causes = {Cause::NoServer};
    report.checks[1].verdict = Verdict::Failed;
    report.checks[1].causes = {Cause::Busy};
    report.checks[2].verdict = Verdict::Failed;
    report.checks[2].causes = {Cause::Muted, Cause::WrongSound};
    return report;
}

} // namespace

template <typename Widget>
Widget* tst_OutcomeWindow::find(const char* name) const
{
    auto* const widget = m_window->findChild<Widget*>(id(name));
    if (!widget) {
        qFatal("the window has no %s", name);
    }
    return widget;
}

void tst_OutcomeWindow::click(const char* name) const
{
    QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton);
}

void tst_OutcomeWindow::initTestCase()
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QCOMPARE(m_languages.use(id("en")), QString());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_OutcomeWindow::init()
{
    m_report = failedReport();
    m_opened.clear();
    m_window = std::make_unique<OutcomeWindow>(m_report);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_OutcomeWindow::cleanup()
{
    m_window.reset();
    QVERIFY(Platform::FileWriter::waitForWritten(5000));
}

void tst_OutcomeWindow::saysOutcomeCausesAndRemedies()
{
    QCOMPARE(find<QLabel>("outcomeLabel")->text(), qtTrId("ID_Host_Outcome_Failed"));
    QStringList texts;
    for (const auto* label : find<QWidget>("contents")->findChildren<QLabel*>()) {
        texts << label->text();
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
    for (const ReportCheck& check : m_report.checks) {
        QVERIFY(texts.contains(qtTrId(ReportWords::textId(check.kind))));
        for (const Cause cause : check.causes) {
            QCOMPARE(texts.count(qtTrId(ReportWords::textId(cause))), 1);
        }
    }
    QCOMPARE(texts.count(qtTrId(ReportWords::textId(Verdict::Failed))), 2);
}

void tst_OutcomeWindow::foreignTextIsPlain()
{
    const QString camera = id("Robin's <script>alert(1)</script> & \"camera\"");
    bool isShown = false;
    for (const auto* label : find<QWidget>("contents")->findChildren<QLabel*>()) {
        isShown = isShown || label->text() == camera;
        QVERIFY(!label->text().contains(QChar(0x1B)));
    }
    QVERIFY(isShown);
}

void tst_OutcomeWindow::escapeAndButtonClose()
{
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
    m_window->show();
    click("closeButton");
    QVERIFY(!m_window->isVisible());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClick(m_window.get(), Qt::Key_Return);
    QVERIFY(!m_window->isVisible());
}

void tst_OutcomeWindow::everythingByKeyboard()
{
    QStringList visited;
    for (int count = 0; count < 6; ++count) {
        QVERIFY(m_window->focusWidget());
        visited << m_window->focusWidget()->objectName();
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited.join(QLatin1Char(' ')),
             id("closeButton scrollArea copyButton saveButton openButton closeButton"));
    m_window->resize(m_window->width(), 250);
    auto* const area = find<QScrollArea>("scrollArea");
    area->setFocus();
    QTest::keyClick(area, Qt::Key_PageDown);
    QTRY_VERIFY(area->verticalScrollBar()->value() > 0);
    find<QPushButton>("copyButton")->setFocus();
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Space);
    QCOMPARE(message(), qtTrId("ID_Host_Window_Copied"));
}

void tst_OutcomeWindow::copies()
{
    QGuiApplication::clipboard()->clear();
    click("copyButton");
    QCOMPARE(QGuiApplication::clipboard()->text(),
             ReportWriter::toText(m_report, TwinTexts(m_report.language)));
    QCOMPARE(message(), qtTrId("ID_Host_Window_Copied"));
}

void tst_OutcomeWindow::chooseFile(const QString& path)
{
    click("saveButton");
    QTRY_VERIFY(fileDialog() && fileDialog()->isVisible());
    auto* const line = fileDialog()->findChild<QLineEdit*>(id("fileNameEdit"));
    QVERIFY(line);
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, path);
    QTest::keyClick(line, Qt::Key_Return);
}

void tst_OutcomeWindow::saves_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("start");
    QTest::newRow("html") << "r.html"
                          << "r.html"
                          << "<!DOCTYPE html>";
    QTest::newRow("text") << "r.txt"
                          << "r.txt"
                          << "";
    QTest::newRow("json") << "r.json"
                          << "r.json"
                          << "{";
    QTest::newRow("no ending") << "bare"
                               << "bare.html"
                               << "<!DOCTYPE html>";
}

void tst_OutcomeWindow::saves()
{
    QFETCH(QString, name);
    QFETCH(QString, file);
    QFETCH(QString, start);
    const QString path = m_folder.filePath(file);
    chooseFile(m_folder.filePath(name));
    QTRY_COMPARE(withoutBreaks(message()), qtTrId("ID_Host_Window_Saved").arg(path));
    QFile written(path);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray content = written.readAll();
    QVERIFY(content.startsWith(start.toUtf8()));
    QVERIFY(content.size() > 1000);
}

void tst_OutcomeWindow::placeThatCannotBeWritten()
{
    const QString path = m_folder.filePath(id("taken.html"));
    click("saveButton");
    QTRY_VERIFY(fileDialog());
    QVERIFY(QDir().mkdir(path)); // somebody made a folder of this name in between
    Q_EMIT fileDialog()->fileSelected(path);
    QTRY_COMPARE(withoutBreaks(message()), qtTrId("ID_Host_Window_NotWritten").arg(path));
    QTest::keyClick(fileDialog(), Qt::Key_Escape);
    QVERIFY(m_window->isVisible());
}

void tst_OutcomeWindow::opens()
{
    QDesktopServices::setUrlHandler(id("file"), this, "takeUrl");
    click("openButton");
    QTRY_VERIFY(!m_opened.isEmpty());
    const QString page = m_opened.toLocalFile();
    const QFileInfo info(page);
    QVERIFY(info.size() > 1000);
    constexpr auto OfOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                              QFileDevice::ReadOther | QFileDevice::WriteOther;
    QVERIFY(!(info.permissions() & OfOthers));
    QVERIFY(!(QFileInfo(info.absolutePath()).permissions() & OfOthers));
    QCOMPARE(withoutBreaks(message()), qtTrId("ID_Host_ReportIsIn").arg(page));
    m_opened.clear();
    click("openButton");
    QCOMPARE(m_opened.toLocalFile(), page); // no second copy
    QDesktopServices::unsetUrlHandler(id("file"));
    m_window.reset();
    QVERIFY(info.exists()); // the browser may still be starting
    QVERIFY(QDir(info.absolutePath()).removeRecursively());
}

// The offscreen platform has nothing that opens files.
void tst_OutcomeWindow::nothingOpensIt()
{
    static const QRegularExpression warning(QStringLiteral("openDocument\\(\\) for 'file:"));
    QTest::ignoreMessage(QtWarningMsg, warning);
    click("openButton");
    const QString start = qtTrId("ID_Host_Window_NotOpened").section(QLatin1Char('%'), 0, 0);
    QTRY_VERIFY2(message().startsWith(start), qPrintable(message()));
    const QString page = withoutBreaks(message()).mid(start.size());
    QVERIFY2(QFileInfo(page).isFile(), qPrintable(page));
    QVERIFY(QDir(QFileInfo(page).absolutePath()).removeRecursively());
}

// The file gets written, and nobody is told.
void tst_OutcomeWindow::closedWhileWriting()
{
    const QString path = m_folder.filePath(id("late.txt"));
    QSemaphore gate;
    Platform::FileWriter::enqueue([&gate] { gate.acquire(); });
    chooseFile(path);
    QElapsedTimer clock;
    clock.start();
    m_window.reset();
    QVERIFY(clock.elapsed() < 200);
    gate.release();
    QVERIFY(Platform::FileWriter::waitForWritten(5000));
    QVERIFY(QFileInfo(path).size() > 1000);
}

void tst_OutcomeWindow::isOpenedForUsers_data()
{
    QTest::addColumn<int>("verdict");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("use");
    QTest::addColumn<bool>("isOpened");
    const auto row = [](const char* title, Verdict verdict, ExitCode code, const char* use,
                        bool isOpened) {
        QTest::newRow(title) << static_cast<int>(verdict) << static_cast<int>(code) << id(use)
                             << isOpened;
    };
    row("finished with a failure", Verdict::Failed, ExitCode::SomeFailed, "", true);
    row("left after a failure", Verdict::Failed, ExitCode::LeftEarly, "", true);
    row("left before any failure", Verdict::NotTested, ExitCode::LeftEarly, "", false);
    row("all passed", Verdict::Passed, ExitCode::AllPassed, "", false);
    row("put out", Verdict::Failed, ExitCode::PutOut, "", false);
    row("quiet", Verdict::Failed, ExitCode::SomeFailed, "quiet", false);
    row("scripted devices", Verdict::Failed, ExitCode::SomeFailed, "scripted", false);
    row("tour", Verdict::Failed, ExitCode::SomeFailed, "tour", false);
}

void tst_OutcomeWindow::isOpenedForUsers()
{
    QFETCH(int, verdict);
    QFETCH(int, code);
    QFETCH(QString, use);
    Options options;
    options.isQuiet = use == id("quiet");
    options.tourFolder = use == id("tour") ? id("folder") : QString();
    options.platform =
        use == id("scripted") ? Options::Platform::Scripted : Options::Platform::Devices;
    RunOutcome outcome;
    outcome.exitCode = static_cast<ExitCode>(code);
    outcome.checks = {{CheckKind::Network, Verdict::Passed, {}},
                      {CheckKind::Camera, static_cast<Verdict>(verdict), {}}};
    QTEST(CheckCommand::opensWindow(options, outcome), "isOpened");
}

QTEST_MAIN(tst_OutcomeWindow)
#include "tst_OutcomeWindow.moc"
