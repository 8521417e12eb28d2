// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/backend/SettingsStore.h"
#include "platform/backend/WholeFile.h"
#include "tests/platform/backend/AnotherUser.h"
#include "tests/support/ProgramTexts.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Platform;

namespace {

constexpr int ContentBytes = 4 * 1024 * 1024;
constexpr int MostTrials = 2000;

void makeFile(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("left");
}

} // namespace

// What killed programs left beside their targets, on Unix.
class tst_Leftovers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void filesOfKilledProgramsGo();
    void foldersOfKilledProgramsGo();
    void fileBeingWrittenStays();
    void onlyOwnNamesGo();
    void whatIsNoFileStays();
    void filesOfOthersStay();
    void workIsBounded();

private:
    using Write = void (*)(const QString& path);

    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    QStringList leftovers() const;
    void stopWhileWriting(Write write, int number);
    void endChild();

    const ProgramTexts m_texts;
    std::unique_ptr<QTemporaryDir> m_folder;
    pid_t m_child = 0; // 0: there is none
};

void tst_Leftovers::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QStringList tst_Leftovers::leftovers() const
{
    return QDir(m_folder->path())
        .entryList({QStringLiteral(".envcheck-*")},
                   QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
}

void tst_Leftovers::cleanup()
{
    endChild();
}

void tst_Leftovers::endChild()
{
    if (m_child > 0) {
        ::kill(m_child, SIGKILL);
        ::waitpid(m_child, nullptr, 0);
        m_child = 0;
    }
}

// Sends the signal to a child that writes without end, until one of them leaves something.
void tst_Leftovers::stopWhileWriting(Write write, int number)
{
    for (int i = 0; i < MostTrials && leftovers().isEmpty(); ++i) {
        endChild();
        const QString target = path("file");
        m_child = ::fork();
        if (m_child == 0) {
            while (true) {
                write(target);
            }
        }
        QVERIFY(m_child > 0);
        // Asked once: the next moment it is gone again.
        QVERIFY(QTest::qWaitFor([this] { return !leftovers().isEmpty(); }));
        QCOMPARE(::kill(m_child, number), 0);
        QCOMPARE(::waitpid(m_child, nullptr, WUNTRACED), m_child);
        m_child = number == SIGKILL ? 0 : m_child;
    }
    QCOMPARE(leftovers().size(), 1);
}

void tst_Leftovers::filesOfKilledProgramsGo()
{
    stopWhileWriting(
        [](const QString& target) { WholeFile::write(target, QByteArray(ContentBytes, 'x')); },
        SIGKILL);
    QCOMPARE(WholeFile::write(path("another"), "content"), QString());
    QCOMPARE(leftovers(), QStringList());
}

void tst_Leftovers::foldersOfKilledProgramsGo()
{
    stopWhileWriting(
        [](const QString& target) {
            SettingsStore(target).setValue(QStringLiteral("key"), QString(100000, 'x'));
            FileWriter::waitForWritten(1000);
        },
        SIGKILL);
    QCOMPARE(WholeFile::write(path("another"), "content"), QString());
    QCOMPARE(leftovers(), QStringList());
}

void tst_Leftovers::fileBeingWrittenStays()
{
    stopWhileWriting(
        [](const QString& target) { WholeFile::write(target, QByteArray(ContentBytes, 'x')); },
        SIGSTOP);
    const QStringList before = leftovers();
    QCOMPARE(WholeFile::write(path("another"), "content"), QString());
    QCOMPARE(leftovers(), before);
    endChild();
    QCOMPARE(WholeFile::write(path("another"), "content"), QString());
    QCOMPARE(leftovers(), QStringList());
}

void tst_Leftovers::onlyOwnNamesGo()
{
    const QStringList others{QStringLiteral(".envcheck-"), QStringLiteral(".envcheck-abcde"),
                             QStringLiteral(".envcheck-abcdefg"),
                             QStringLiteral(".envcheck-ab.def"), QStringLiteral("envcheck-abcdef")};
    for (const QString& name : others) {
        makeFile(m_folder->filePath(name));
    }
    makeFile(path(".envcheck-aB3dEf"));
    QCOMPARE(WholeFile::write(path("file"), "content"), QString());
    for (const QString& name : others) {
        QVERIFY2(QFile::exists(m_folder->filePath(name)), qPrintable(name));
    }
    QVERIFY(!QFile::exists(path(".envcheck-aB3dEf")));
}

// A link isn't followed, a pipe isn't waited for, and a folder with folders isn't of ours.
void tst_Leftovers::whatIsNoFileStays()
{
    makeFile(path("precious"));
    QVERIFY(QFile::link(path("precious"), path(".envcheck-link00")));
    QCOMPARE(mkfifo(QFile::encodeName(path(".envcheck-pipe00")).constData(), 0600), 0);
    QVERIFY(QDir().mkpath(path(".envcheck-folder/below")));
    QVERIFY(QDir().mkpath(path("elsewhere")));
    makeFile(path("elsewhere/precious"));
    QVERIFY(QFile::link(path("elsewhere"), path(".envcheck-link01")));
    const QStringList before = leftovers();
    QCOMPARE(WholeFile::write(path("file"), "content"), QString());
    QCOMPARE(leftovers(), before);
    QVERIFY(QFile::exists(path("precious")));
    QVERIFY(QFile::exists(path("elsewhere/precious")));
}

void tst_Leftovers::filesOfOthersStay()
{
    const QString foreign = path(".envcheck-foreig");
    makeFile(foreign);
    {
        const TestSupport::AnotherUser other;
        QCOMPARE(WholeFile::write(path("file"), "content"), QString());
    }
    QVERIFY(QFile::exists(foreign));
    QCOMPARE(WholeFile::write(path("file"), "content"), QString());
    QVERIFY(!QFile::exists(foreign)); // it was ours
}

// Many go step by step.
void tst_Leftovers::workIsBounded()
{
    constexpr int Most = 100;
    constexpr int Count = 150;
    for (int i = 0; i < Count; ++i) {
        makeFile(m_folder->filePath(QStringLiteral(".envcheck-%1").arg(100000 + i)));
    }
    QCOMPARE(WholeFile::write(path("file"), "content"), QString());
    QCOMPARE(leftovers().size(), Count - Most);
    QCOMPARE(WholeFile::write(path("file"), "content"), QString());
    QCOMPARE(leftovers(), QStringList());
}

QTEST_GUILESS_MAIN(tst_Leftovers)
#include "tst_Leftovers.moc"
