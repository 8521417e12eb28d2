// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <QThread>
#include <QtTest>

#include <memory>

// Not a test: tst_WarningGuard runs each function by itself and looks whether it failed.
class Warnings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void none();
    void debugAndInfo();
    void announced();
    void announcedInThread();
    void letThrough();

    void stray();
    void strayCritical();
    void strayOfTest();
    void strayInThread();
    void strayBesideAnnounced();
    void announcedOnceSentTwice();
    void strayBesideLetThrough();
};

namespace {

void inThread(void (*send)())
{
    const std::unique_ptr<QThread> thread(QThread::create(send));
    thread->start();
    thread->wait();
}

} // namespace

void Warnings::none()
{
    QVERIFY(true);
}

void Warnings::debugAndInfo()
{
    qDebug("a debug message");
    qInfo("an information");
}

void Warnings::announced()
{
    QTest::ignoreMessage(QtWarningMsg, "an announced warning");
    qWarning("an announced warning");
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("^an announced")));
    qCritical("an announced critical message");
}

void Warnings::announcedInThread()
{
    QTest::ignoreMessage(QtWarningMsg, "an announced warning");
    inThread([] { qWarning("an announced warning"); });
}

void Warnings::letThrough()
{
    qWarning("This plugin does not support something");
    qWarning("QMetaObject::connectSlotsByName: No matching signal for on_record_clicked()");
}

void Warnings::stray()
{
    qWarning("a stray message");
}

void Warnings::strayCritical()
{
    qCritical("a stray message");
}

void Warnings::strayOfTest()
{
    QTest::qWarn("a stray message");
}

void Warnings::strayInThread()
{
    inThread([] { qWarning("a stray message"); });
}

void Warnings::strayBesideAnnounced()
{
    QTest::ignoreMessage(QtWarningMsg, "an announced warning");
    qWarning("a stray message");
    qWarning("an announced warning");
}

void Warnings::announcedOnceSentTwice()
{
    QTest::ignoreMessage(QtWarningMsg, "a stray message");
    qWarning("a stray message");
    qWarning("a stray message");
}

void Warnings::strayBesideLetThrough()
{
    qWarning("This plugin does not support something");
    qWarning("a stray message");
}

GUARDED_MAIN(Warnings)
#include "Warnings.moc"
