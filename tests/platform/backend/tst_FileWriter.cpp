// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "tests/support/AtOnce.h"

#include "tests/support/ProgramTexts.h"
#include "tests/support/WriteObstacle.h"

#include <QLockFile>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <atomic>

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
    void newestContentWins();
    void changesOfOnePathAreOneWrite();
    void changesThatWaitAreBounded();
    void tellsWhoAsked();
    void writesAtOnceBeforeTheRest();
    void removesWhatWaits();

private:
    QString path(const char* name = "file") const
    {
        return m_folder->filePath(QLatin1String(name));
    }

    const ProgramTexts m_texts;
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
    const auto after = [](const QByteArray&) { return QByteArray("after"); };
    FileWriter::update(path(), after);
    QVERIFY(clock.elapsed() < AtOnceMs);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(clock.elapsed() >= FileWriter::LockTimeoutMs);
    QVERIFY(clock.elapsed() < 2 * FileWriter::LockTimeoutMs);
    QCOMPARE(contentOf(path()), QByteArray("before"));

    foreign.unlock();
    FileWriter::update(path(), after);
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
    FileWriter::update(path(), [](const QByteArray& present) { return present; });
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

// A disk that takes its time: the contents in between are never written, and nobody keeps them.
void tst_FileWriter::newestContentWins()
{
    QSemaphore mayEnd;
    FileWriter::enqueue([&mayEnd] { mayEnd.acquire(); });
    std::atomic<int> told{0};
    for (int i = 0; i < 100; ++i) {
        FileWriter::replace(path(), QByteArray::number(i), [&told](const QString& problem) {
            told += problem.isEmpty() ? 1 : 1000;
        });
    }
    std::atomic<int> seen{0};
    FileWriter::update(path(), [&seen](const QByteArray& present) {
        ++seen;
        return present + " and more";
    });
    mayEnd.release();
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(path()), QByteArray("99 and more"));
    QCOMPARE(told.load(), 100);
    QCOMPARE(seen.load(), 1);
}

void tst_FileWriter::changesOfOnePathAreOneWrite()
{
    FileWriter::replace(path(), "0");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QSemaphore mayEnd;
    FileWriter::enqueue([&mayEnd] { mayEnd.acquire(); });
    QByteArrayList inFile;
    for (int i = 1; i <= 3; ++i) {
        FileWriter::update(path(), [&inFile, i, this](const QByteArray& present) {
            inFile << contentOf(path());
            return present + QByteArray::number(i);
        });
    }
    mayEnd.release();
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(inFile, QByteArrayList({"0", "0", "0"}));
    QCOMPARE(contentOf(path()), QByteArray("0123"));
}

void tst_FileWriter::changesThatWaitAreBounded()
{
    QSemaphore mayEnd;
    FileWriter::enqueue([&mayEnd] { mayEnd.acquire(); });
    const auto longer = [](const QByteArray& present) { return present + 'x'; };
    for (int i = 0; i < FileWriter::MaxChanges; ++i) {
        FileWriter::update(path(), longer);
    }
    expectComplaint(path(), QStringLiteral("too many changes wait for the disk$"));
    FileWriter::update(path(), longer);
    mayEnd.release();
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(path()).size(), FileWriter::MaxChanges);
}

// Whoever listens gets the reason and no warning; the others get both.
void tst_FileWriter::tellsWhoAsked()
{
    QString told;
    const FileWriter::Done take = [&told](const QString& problem) { told = problem; };
    FileWriter::replace(m_folder->path(), "content", take);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(told, QStringLiteral("it is not a regular file"));
    QVERIFY(!FileWriter::outcome().failed.contains(m_folder->path()));
    QCOMPARE(FileWriter::replaceNow(m_folder->path(), "content", WaitMs), told);

    FileWriter::update(
        path(), [](const QByteArray&) { return std::nullopt; }, take);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(told, QStringLiteral("its new content can't be made; is the disk full?"));
    QVERIFY(!QFileInfo::exists(path()));

    expectComplaint(path("file/below"), QStringLiteral("its folder can't be created$"));
    FileWriter::replace(path(), "content");
    FileWriter::replace(path("file/below"), "content"); // one warning for both
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    FileWriter::replace(path("file/below"), "content");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(FileWriter::outcome().failed.contains(path("file/below")));
    QVERIFY(QFile::remove(path()));
    FileWriter::replace(path("file/below"), "content");
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(!FileWriter::outcome().failed.contains(path("file/below")));
}

void tst_FileWriter::writesAtOnceBeforeTheRest()
{
    QSemaphore hasBegun;
    QSemaphore mayEnd;
    FileWriter::enqueue([&hasBegun, &mayEnd] {
        hasBegun.release();
        mayEnd.acquire();
    });
    hasBegun.acquire();
    bool wasThere = false;
    FileWriter::update(path("other"), [&wasThere, this](const QByteArray& present) {
        wasThere = QFileInfo::exists(path());
        return present;
    });
    FileWriter::replace(path(), "old");
    QCOMPARE(FileWriter::replaceNow(path(), "new", AtOnceMs),
             QStringLiteral("the disk does not answer"));
    QCOMPARE(FileWriter::outcome().waiting, QStringList{path("other")});
    mayEnd.release();
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QCOMPARE(contentOf(path()), QByteArray("new"));
    QVERIFY(wasThere);
    QVERIFY(FileWriter::outcome().waiting.isEmpty());
}

void tst_FileWriter::removesWhatWaits()
{
    QSemaphore mayEnd;
    FileWriter::enqueue([&mayEnd] { mayEnd.acquire(); });
    FileWriter::replace(path(), "content");
    FileWriter::remove(path());
    FileWriter::replace(path("other"), "old");
    FileWriter::remove(path("other"));
    FileWriter::update(path("other"), [](const QByteArray& present) { return present + "new"; });
    mayEnd.release();
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(!QFileInfo::exists(path()));
    QCOMPARE(contentOf(path("other")), QByteArray("new"));
}

QTEST_GUILESS_MAIN(tst_FileWriter)
#include "tst_FileWriter.moc"
