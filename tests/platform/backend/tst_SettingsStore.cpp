// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/backend/SettingsStore.h"
#include "tests/support/AtOnce.h"
#include "tests/support/ProgramTexts.h"
#include "tests/support/WriteObstacle.h"

#include <QLockFile>
#include <QRegularExpression>
#include <QSemaphore>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace Platform;

namespace {

constexpr int WaitMs = 10000;

const QString Key = QStringLiteral("ShowSystemCheck");
const QString Foreign = QStringLiteral("Window/Width");

} // namespace

class tst_SettingsStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void fallsBackWhereThereIsNothing();
    void keepsValuesOfEveryKind();
    void keepsTheKeysOfOthers();
    void keepsWhatOthersWroteMeanwhile();
    void returnsAtOnceFromALockedFile();
    void catchesUpAfterALock();
    void survivesAFolderInItsPlace();
    void readsOverGarbage();
    void keepsWhatIsThereOnAFullDisk();
    void waitingValuesAreOneWrite();

private:
    QVariant inFile(const QString& key) const
    {
        return QSettings(m_path, QSettings::IniFormat).value(key);
    }
    void writeForeign(const QVariant& value) const
    {
        QSettings(m_path, QSettings::IniFormat).setValue(Foreign, value);
    }

    const ProgramTexts m_texts;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void tst_SettingsStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_path = m_folder->filePath(QStringLiteral("store.ini"));
}

void tst_SettingsStore::fallsBackWhereThereIsNothing()
{
    const SettingsStore store(m_path);
    QCOMPARE(store.value(Key, true).toBool(), true);
    QVERIFY(!store.value(Key).isValid());
    QVERIFY(!QFileInfo::exists(m_path)); // asking writes nothing
}

void tst_SettingsStore::keepsValuesOfEveryKind()
{
    const QString text = QString::fromUtf8("\xE6\xB5\x8B\xE8\xAF\x95, \"x\" = <b>\n;%20");
    {
        SettingsStore store(m_path);
        store.setValue(Key, false);
        store.setValue(QStringLiteral("a/b/number"), 7);
        store.setValue(QStringLiteral("text"), text);
        QCOMPARE(store.value(Key, true), QVariant(false)); // at once
    }
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    const SettingsStore again(m_path);
    QCOMPARE(again.value(Key, true).toBool(), false);
    QCOMPARE(again.value(QStringLiteral("a/b/number")).toInt(), 7);
    QCOMPARE(again.value(QStringLiteral("text")).toString(), text);
    QCOMPARE(inFile(Key).toString(), QStringLiteral("false"));
}

void tst_SettingsStore::keepsTheKeysOfOthers()
{
    writeForeign(800);
    SettingsStore store(m_path);
    QCOMPARE(store.value(Foreign).toInt(), 800);
    store.setValue(Key, false);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(inFile(Foreign).toInt(), 800);
    QCOMPARE(inFile(Key).toBool(), false);
}

void tst_SettingsStore::keepsWhatOthersWroteMeanwhile()
{
    writeForeign(800);
    SettingsStore store(m_path);
    QCOMPARE(store.value(Foreign).toInt(), 800);
    writeForeign(900);
    store.setValue(Key, false);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(inFile(Foreign).toInt(), 900);
}

void tst_SettingsStore::returnsAtOnceFromALockedFile()
{
    writeForeign(800);
    QLockFile foreign(m_path + QStringLiteral(".lock"));
    QVERIFY(foreign.tryLock());
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^Not written: .*store\\.ini - another "
                                                           "program holds its lock file")));
    QElapsedTimer clock;
    clock.start();
    SettingsStore store(m_path);
    QCOMPARE(store.value(Foreign).toInt(), 800);
    store.setValue(Key, false);
    QCOMPARE(store.value(Key), QVariant(false));
    QVERIFY2(clock.elapsed() < AtOnceMs, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(!inFile(Key).isValid());
    QCOMPARE(inFile(Foreign).toInt(), 800);
}

void tst_SettingsStore::catchesUpAfterALock()
{
    SettingsStore store(m_path);
    {
        QLockFile foreign(m_path + QStringLiteral(".lock"));
        QVERIFY(foreign.tryLock());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Not written: ")));
        store.setValue(Key, false);
        QVERIFY(FileWriter::waitForWritten(WaitMs));
    }
    store.setValue(QStringLiteral("other"), 1);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(inFile(Key).toString(), QStringLiteral("false"));
}

void tst_SettingsStore::survivesAFolderInItsPlace()
{
    QVERIFY(QDir().mkpath(m_path));
    SettingsStore store(m_path);
    QCOMPARE(store.value(Key, 5).toInt(), 5);
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("it is not a regular file$")));
    store.setValue(Key, false);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(QFileInfo(m_path).isDir());
}

void tst_SettingsStore::readsOverGarbage()
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("\xff\xfe\x00garbage[[[\n=\n", 16) + "kept=1\nShowSystemCheck=true\n");
    file.close();
    SettingsStore store(m_path);
    QVERIFY(!store.value(Foreign).isValid());
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^Damaged settings: .*store\\.ini - ")));
    store.setValue(Key, false);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(SettingsStore(m_path).value(Key, true).toBool(), false);
    QCOMPARE(inFile(QStringLiteral("kept")).toInt(), 1);
}

// No file may grow above the limit: neither the copy that is edited nor the store itself.
void tst_SettingsStore::keepsWhatIsThereOnAFullDisk()
{
    constexpr int Limit = 1000;
    const QString text(2 * Limit, QLatin1Char('x'));
    writeForeign(800);
    SettingsStore store(m_path);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Not written: ")));
    {
        const WriteObstacle obstacle(m_path, Limit);
        store.setValue(QStringLiteral("text"), text);
        QVERIFY(FileWriter::waitForWritten(WaitMs));
    }
    QCOMPARE(QSettings(m_path, QSettings::IniFormat).allKeys(), QStringList{Foreign});
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{QStringLiteral("store.ini")});
    store.setValue(Key, false); // there is room again: nothing is lost
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(inFile(QStringLiteral("text")).toString(), text);
    QCOMPARE(inFile(Foreign).toInt(), 800);

#ifdef Q_OS_UNIX
    const QString path = m_folder->filePath(QStringLiteral("new.ini"));
    SettingsStore newOne(path);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Not written: ")));
    {
        const WriteObstacle obstacle(path, Limit);
        newOne.setValue(QStringLiteral("text"), text);
        QVERIFY(FileWriter::waitForWritten(WaitMs));
    }
    QVERIFY(!QFileInfo::exists(path));
#endif
}

void tst_SettingsStore::waitingValuesAreOneWrite()
{
    QSemaphore mayEnd;
    FileWriter::enqueue([&mayEnd] { mayEnd.acquire(); });
    {
        SettingsStore store(m_path);
        for (int i = 0; i <= 100; ++i) {
            store.setValue(QStringLiteral("number"), i);
            store.setValue(QStringLiteral("key%1").arg(i), i);
        }
    }
    mayEnd.release();
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(inFile(QStringLiteral("number")).toInt(), 100);
    QCOMPARE(QSettings(m_path, QSettings::IniFormat).allKeys().size(), 102);
}

QTEST_GUILESS_MAIN(tst_SettingsStore)
#include "tst_SettingsStore.moc"
