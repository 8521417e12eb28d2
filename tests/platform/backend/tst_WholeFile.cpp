// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/WholeFile.h"
#include "tests/platform/backend/AnotherUser.h"
#include "tests/support/ProgramTexts.h"
#include "tests/support/WriteObstacle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>
#include <limits>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Platform;

namespace {

constexpr uid_t Nobody = 65534;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

mode_t modeOf(const QString& path)
{
    struct stat status = {};
    ::lstat(QFile::encodeName(path).constData(), &status);
    return status.st_mode & 07777U;
}

} // namespace

// On Unix, whatever the user's mask is.
class tst_WholeFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { umask(0); }
    void init();

    void belongsToTheUserAlone();
    void replacesAWorldReadableFile();
    void foldersBelongToTheUserAlone();
    void failureLeavesNothing();
    void followsOwnLinks();
    void refusesLinksOfOthers();
    void refusesWhatIsNoFile_data();
    void refusesWhatIsNoFile();
    void refusesWhatIsTooLarge();
    void takesMemoryForWhatThereIs();

private:
    QString path(const char* name = "file") const
    {
        return m_folder->filePath(QLatin1String(name));
    }

    const ProgramTexts m_texts;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_WholeFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_WholeFile::belongsToTheUserAlone()
{
    QCOMPARE(WholeFile::write(path(), "content"), QString());
    QCOMPARE(contentOf(path()), QByteArray("content"));
    QCOMPARE(modeOf(path()), mode_t(0600));
    QByteArray read;
    QCOMPARE(WholeFile::read(path(), &read), QString());
    QCOMPARE(read, QByteArray("content"));
    QCOMPARE(WholeFile::read(path("nothing"), &read), QString());
    QCOMPARE(read, QByteArray());
}

// Who has opened the old file sees nothing of the new content.
void tst_WholeFile::replacesAWorldReadableFile()
{
    QFile old(path());
    QVERIFY(old.open(QIODevice::ReadWrite));
    QVERIFY(old.setPermissions(QFile::Permissions(0x6666)));
    QCOMPARE(WholeFile::write(path(), "secret"), QString());
    QCOMPARE(modeOf(path()), mode_t(0600));
    QCOMPARE(old.readAll(), QByteArray());
}

void tst_WholeFile::foldersBelongToTheUserAlone()
{
    QVERIFY(WholeFile::makeFolder(path("a/b")));
    QVERIFY(WholeFile::makeFolder(path("a/b")));
    QCOMPARE(modeOf(path("a")), mode_t(0700));
    QCOMPARE(modeOf(path("a/b")), mode_t(0700));
    QCOMPARE(WholeFile::write(path("a/b/file"), "content"), QString());
    QVERIFY(!WholeFile::makeFolder(path("a/b/file/c")));
}

void tst_WholeFile::failureLeavesNothing()
{
    constexpr int Limit = 1000;
    QCOMPARE(WholeFile::write(path(), "old"), QString());
    {
        const WriteObstacle obstacle(path(), Limit);
        QVERIFY(!WholeFile::write(path(), QByteArray(2 * Limit, 'x')).isEmpty());
    }
    QCOMPARE(contentOf(path()), QByteArray("old"));
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{QStringLiteral("file")});
    QVERIFY(!WholeFile::write(path("nowhere/file"), "x").isEmpty());
}

// Some keep their settings elsewhere.
void tst_WholeFile::followsOwnLinks()
{
    QCOMPARE(WholeFile::write(path(), "old"), QString());
    QVERIFY(QFile::link(path(), path("link")));
    QCOMPARE(WholeFile::write(path("link"), "new"), QString());
    QCOMPARE(contentOf(path()), QByteArray("new"));
    QVERIFY(QFileInfo(path("link")).isSymLink());
    QVERIFY(QFile::link(path("nothing"), path("broken")));
    QCOMPARE(WholeFile::write(path("broken"), "new"),
             QStringLiteral("it is a link that leads nowhere"));
}

void tst_WholeFile::refusesLinksOfOthers()
{
    QCOMPARE(WholeFile::write(path(), "old"), QString());
    QVERIFY(QFile::link(path(), path("link")));
    // Links of root are followed, so root gives it away; anybody else becomes another one.
    std::optional<TestSupport::AnotherUser> other;
    if (::getuid() != 0) {
        other.emplace();
    } else {
        QCOMPARE(::lchown(QFile::encodeName(path("link")).constData(), Nobody, Nobody), 0);
    }
    const QString reason = QStringLiteral("it is a link that belongs to another user");
    QByteArray read;
    QCOMPARE(WholeFile::read(path("link"), &read), reason);
    QCOMPARE(WholeFile::write(path("link"), "new"), reason);
    QCOMPARE(contentOf(path()), QByteArray("old"));
}

void tst_WholeFile::refusesWhatIsNoFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("folder") << "/";
    QTest::newRow("device") << "/dev/zero";
    QTest::newRow("named pipe") << QString();
}

void tst_WholeFile::refusesWhatIsNoFile()
{
    QFETCH(QString, name);
    if (name.isEmpty()) {
        name = path("fifo");
        QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
    }
    const QString reason = QStringLiteral("it is not a regular file");
    QByteArray read;
    QCOMPARE(WholeFile::problem(name), reason);
    QCOMPARE(WholeFile::read(name, &read), reason);
    QCOMPARE(WholeFile::write(name, "x"), reason);
}

// The most that may come is more than any memory.
void tst_WholeFile::takesMemoryForWhatThereIs()
{
    QCOMPARE(WholeFile::write(path(), "content"), QString());
    QByteArray content;
    QCOMPARE(WholeFile::read(path(), &content, std::numeric_limits<qint64>::max() / 2), QString());
    QCOMPARE(content, QByteArray("content"));
}

void tst_WholeFile::refusesWhatIsTooLarge()
{
    QCOMPARE(WholeFile::write(path(), QByteArray(2 * 1024 * 1024 + 1, 'x')), QString());
    QByteArray read;
    QCOMPARE(WholeFile::read(path(), &read, 2 * 1024 * 1024),
             QStringLiteral("it is larger than 2 MiB"));
    QVERIFY(read.isEmpty());
}

QTEST_GUILESS_MAIN(tst_WholeFile)
#include "tst_WholeFile.moc"
