// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "tests/support/AtOnce.h"

#include "tests/support/WriteObstacle.h"

#include <QLockFile>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Platform;

namespace {

constexpr int WaitMs = 10000;
QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void expectComplaint(const QString& path, const QString& reason)
{
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression(
            QLatin1Char('^') +
            QRegularExpression::escape(QStringLiteral("Not written: %1 - ").arg(path)) + reason));
}

} // namespace

class tst_FileWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void writesOffTheCallersThread();
    void makesTheFolder();
    void writesBelowALongPath();
    void keepsTheOrder();
    void handsThePresentContentOn();
    void waitsNoLongerThanAsked();
    void leavesALockedFileAlone();
    void refusesWhatIsNoFile();
    void refusesAFolderThatCannotBe();
    void refusesAnAbsurdlyLargeFile();
    void leavesTheFileWhereItCannotBeWritten();

private:
    QString path(const char* name = "file") const
    {
        return m_folder->filePath(QLatin1String(name));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FileWriter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_FileWriter::writesOffTheCallersThread()
{
    QThread* writer = nullptr;
    FileWriter::update(path(), [&writer](const QByteArray&) {
        writer = QThread::currentThread();
        return QByteArray("content");
    });
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(path()), QByteArray("content"));
    QVERIFY(writer != nullptr);
    QVERIFY(writer != QThread::currentThread());
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("file")}); // no lock, nothing half written
}

void tst_FileWriter::makesTheFolder()
{
    FileWriter::replace(path("a/b/file"), "content");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(path("a/b/file")), QByteArray("content"));
}

// Longer than what Windows' older functions take.
void tst_FileWriter::writesBelowALongPath()
{
    constexpr int Depth = 8;
    const QString name(50, QChar(0x8bfe));
    QString file = m_folder->path();
    for (int level = 0; level < Depth; ++level) {
        file += QLatin1Char('/') + name;
    }
    FileWriter::replace(file, "before");
    FileWriter::replace(file, "content");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(file), QByteArray("content"));
    QCOMPARE(QDir(QFileInfo(file).absolutePath()).entryList(QDir::Files | QDir::Hidden),
             QStringList{name});
}

void tst_FileWriter::keepsTheOrder()
{
    QByteArray expected;
    for (int i = 0; i < 100; ++i) {
        expected += QByteArray::number(i) + ' ';
        FileWriter::update(path(), [i](const QByteArray& present) {
            return present + QByteArray::number(i) + ' ';
        });
    }
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(path()), expected);
}

void tst_FileWriter::handsThePresentContentOn()
{
    FileWriter::replace(path(), "one");
    QByteArray seen;
    FileWriter::update(path(), [&seen](const QByteArray& present) {
        seen = present;
        return QByteArray();
    });
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(seen, QByteArray("one"));
    QVERIFY(QFileInfo(path()).isFile());
    QVERIFY(contentOf(path()).isEmpty());
}

void tst_FileWriter::waitsNoLongerThanAsked()
{
    QSemaphore mayEnd;
    FileWriter::enqueue([&mayEnd] { mayEnd.acquire(); });
    QElapsedTimer clock;
    clock.start();
    FileWriter::replace(path(), "content");
    QVERIFY(clock.elapsed() < AtOnceMs);
    QVERIFY(!FileWriter::waitForWritten(AtOnceMs));
    QVERIFY(!QFileInfo::exists(path()));
    mayEnd.release();
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(path()), QByteArray("content"));
}

void tst_FileWriter::leavesALockedFileAlone()
{
    FileWriter::replace(path(), "before");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QLockFile foreign(path("file.lock"));
    QVERIFY(foreign.tryLock());
    expectComplaint(path(), QStringLiteral("another program holds its lock file .*file\\.lock$"));
    QElapsedTimer clock;
    clock.start();
    FileWriter::replace(path(), "after");
    QVERIFY(clock.elapsed() < AtOnceMs);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(clock.elapsed() >= FileWriter::LockTimeoutMs);
    QVERIFY(clock.elapsed() < 2 * FileWriter::LockTimeoutMs);
    QCOMPARE(contentOf(path()), QByteArray("before"));

    foreign.unlock();
    FileWriter::replace(path(), "after");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(path()), QByteArray("after"));
}

void tst_FileWriter::refusesWhatIsNoFile()
{
    expectComplaint(m_folder->path(), QStringLiteral("it is not a regular file$"));
    FileWriter::replace(m_folder->path(), "content");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(QFileInfo(m_folder->path()).isDir());

#ifdef Q_OS_UNIX
    const QString fifo = path("fifo");
    QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    expectComplaint(fifo, QStringLiteral("it is not a regular file$"));
    FileWriter::replace(fifo, "content");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(QFileInfo::exists(fifo));
    QVERIFY(!QFileInfo(fifo).isFile());
#else
    for (const char* name : {"nul", "con.json", "aux/file", "file:stream", "file."}) {
        expectComplaint(path(name), QStringLiteral("(on Windows a name|.* a device on Windows)"));
        FileWriter::replace(path(name), "content");
        QVERIFY(FileWriter::waitForWritten(WaitMs));
    }
    QVERIFY(QDir(m_folder->path()).isEmpty());
#endif
}

void tst_FileWriter::refusesAFolderThatCannotBe()
{
    FileWriter::replace(path(), "content");
    expectComplaint(path("file/below"), QStringLiteral("its folder can't be created$"));
    FileWriter::replace(path("file/below"), "content");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(path()), QByteArray("content"));
}

void tst_FileWriter::refusesAnAbsurdlyLargeFile()
{
    constexpr qint64 OneTooMany = 16 * 1024 * 1024 + 1;
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(OneTooMany));
    file.close();
    expectComplaint(path(), QStringLiteral("it is larger than 16 MiB$"));
    FileWriter::replace(path(), "content");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(QFileInfo(path()).size(), OneTooMany);
}

// The content is short enough to wait in a buffer until the file is closed.
void tst_FileWriter::leavesTheFileWhereItCannotBeWritten()
{
    constexpr int Limit = 1000;
    FileWriter::replace(path(), "old");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    expectComplaint(path(), QStringLiteral("."));
    {
        const WriteObstacle obstacle(path(), Limit);
        FileWriter::replace(path(), QByteArray(2 * Limit, 'x'));
        QVERIFY(FileWriter::waitForWritten(WaitMs));
    }
    QCOMPARE(contentOf(path()), QByteArray("old"));
}

QTEST_GUILESS_MAIN(tst_FileWriter)
#include "tst_FileWriter.moc"
