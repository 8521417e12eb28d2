// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/report/OldReports.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_OldReports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tooMany();
    void tooOld();
    void clockSetForward();
    void clockSetBack();
    void foreignFilesStay();

private:
    QString make(const QDateTime& time) const;
    QString path() const { return m_folder->path(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    const QDateTime m_now = QDateTime(QDate(2026, 3, 1), QTime(12, 0));
};

void tst_OldReports::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

// A report that the program wrote at this time.
QString tst_OldReports::make(const QDateTime& time) const
{
    QFile file(m_folder->filePath(time.toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss-zzz")) +
                                  QStringLiteral(".json")));
    if (!file.open(QIODevice::WriteOnly) ||
        !file.setFileTime(time, QFileDevice::FileModificationTime)) {
        qWarning("The file can't be made");
    }
    return file.fileName();
}

void tst_OldReports::tooMany()
{
    QStringList runs;
    for (int i = 0; i < OldReports::MaxReports + 3; ++i) {
        runs << make(m_now.addSecs(i - 5000));
    }
    QCOMPARE(OldReports::of(path(), runs, m_now), runs.mid(0, 3));
    QCOMPARE(OldReports::of(path(), {}, m_now), runs.mid(0, 3)); // the list of runs is lost
}

void tst_OldReports::tooOld()
{
    QStringList runs;
    for (int i = 0; i < 120; ++i) {
        runs << make(m_now.addDays(-500).addSecs(i));
    }
    QCOMPARE(OldReports::of(path(), runs, m_now), runs.mid(0, 20));
    QCOMPARE(OldReports::of(path(), runs, m_now.addDays(-101)), QStringList());
}

void tst_OldReports::clockSetForward()
{
    QStringList runs;
    for (int i = 0; i < OldReports::KeptAlways; ++i) {
        runs << make(m_now.addSecs(i));
    }
    QCOMPARE(OldReports::of(path(), runs, m_now.addYears(50)), QStringList());
}

// The newest report has the oldest time.
void tst_OldReports::clockSetBack()
{
    QStringList runs;
    for (int i = 0; i < OldReports::MaxReports; ++i) {
        runs << make(m_now.addSecs(i));
    }
    runs << make(m_now.addYears(-50));
    QCOMPARE(OldReports::of(path(), runs, m_now), runs.mid(0, 1));
}

void tst_OldReports::foreignFilesStay()
{
    for (int i = 0; i < OldReports::MaxReports; ++i) {
        make(m_now.addSecs(i));
    }
    QFile file(m_folder->filePath(QStringLiteral("0-of-my-class.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(OldReports::of(path(), {}, m_now), QStringList());
}

QTEST_GUILESS_MAIN(tst_OldReports)
#include "tst_OldReports.moc"
