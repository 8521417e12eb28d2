// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/diagnosis/LogRecorder.h"

#include <QLoggingCategory>
#include <QtTest>

#include <thread>

namespace {

Q_LOGGING_CATEGORY(engineCategory, "engine.test", QtWarningMsg)
Q_LOGGING_CATEGORY(otherCategory, "other.test")

QStringList theShown; // on the terminal

void show(QtMsgType, const QMessageLogContext&, const QString& text)
{
    theShown << text;
}

} // namespace

class tst_LogRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { qInstallMessageHandler(m_previous); }

    void keepsDetailsOfTheEngine();
    void showsDetailsIfAsked();
    void leavesOthersOut();
    void oneLineForEach();
    void manyLines();
    void fromOtherThreads();
    void everythingIsAsBefore();

private:
    QtMessageHandler m_previous = nullptr;
};

void tst_LogRecorder::init()
{
    theShown.clear();
    m_previous = qInstallMessageHandler(&show);
}

void tst_LogRecorder::keepsDetailsOfTheEngine()
{
    const LogRecorder recorder(false);
    qCDebug(engineCategory, "a detail");
    qCWarning(engineCategory, "a warning");
    const QList<QByteArray> lines = recorder.content().split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(QRegularExpression(QStringLiteral("^\\d+\\.\\d{3} engine\\.test debug: a detail$"))
                 .match(QString::fromUtf8(lines[0]))
                 .hasMatch(),
             lines[0].constData());
    QVERIFY(lines[1].endsWith(" engine.test warning: a warning"));
    QVERIFY(lines[2].isEmpty());
    QCOMPARE(theShown, QStringList{QStringLiteral("a warning")});
}

void tst_LogRecorder::showsDetailsIfAsked()
{
    const LogRecorder recorder(true);
    qCDebug(engineCategory, "a detail");
    QVERIFY(recorder.content().contains("a detail"));
    QCOMPARE(theShown, QStringList{QStringLiteral("a detail")});
}

void tst_LogRecorder::leavesOthersOut()
{
    QLoggingCategory::setFilterRules(QStringLiteral("other.*.debug=false"));
    const LogRecorder recorder(false);
    qCDebug(otherCategory, "of no interest");
    qCWarning(otherCategory, "still a warning");
    QLoggingCategory::setFilterRules({});
    QVERIFY(!recorder.content().contains("of no interest"));
    QVERIFY(recorder.content().contains("other.test warning: still a warning"));
}

void tst_LogRecorder::oneLineForEach()
{
    const LogRecorder recorder(false);
    qCInfo(engineCategory).noquote()
        << "first\nsecond\x1b[31m" << QString(3 * LogRecorder::MaxLineLength, QLatin1Char('x'));
    const QByteArray content = recorder.content();
    QCOMPARE(content.count('\n'), 1);
    QVERIFY(!content.contains('\x1b'));
    QVERIFY(content.size() < 2 * LogRecorder::MaxLineLength);
}

void tst_LogRecorder::manyLines()
{
    const LogRecorder recorder(false);
    for (int line = 0; line < LogRecorder::MaxLines + 7; ++line) {
        qCDebug(engineCategory, "%d", line);
    }
    const QByteArray content = recorder.content();
    QCOMPARE(content.count('\n'), LogRecorder::MaxLines + 1);
    QVERIFY(content.contains(" debug: 0\n"));
    QVERIFY(content.endsWith("7 lines left out\n"));
}

void tst_LogRecorder::fromOtherThreads()
{
    const LogRecorder recorder(false);
    std::thread([] { qCDebug(engineCategory, "from elsewhere"); }).join();
    QVERIFY(recorder.content().contains("from elsewhere"));
}

void tst_LogRecorder::everythingIsAsBefore()
{
    {
        const LogRecorder recorder(true);
        qCDebug(engineCategory, "kept");
    }
    theShown.clear();
    qCDebug(engineCategory, "below the threshold");
    qCWarning(engineCategory, "shown");
    QCOMPARE(theShown, QStringList{QStringLiteral("shown")});
    QCOMPARE(LogRecorder(false).content(), QByteArray());
}

QTEST_GUILESS_MAIN(tst_LogRecorder)
#include "tst_LogRecorder.moc"
