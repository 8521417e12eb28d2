// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Languages.h"
#include "host/Options.h"
#include "host/ReportToken.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class tst_ReportToken : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nothing();
    void fromTheFile_data();
    void fromTheFile();
    void fromTheEnvironment();
    void noToken_data();
    void noToken();
    void openFile_data();
    void openFile();
    void noFile();
    void onlyEncrypted_data();
    void onlyEncrypted();

private:
    QString written(const QByteArray& content, QFile::Permissions permissions) const;

    Languages m_languages;
    std::unique_ptr<QTemporaryDir> m_folder;
    Options m_options;
};

namespace {

const QFile::Permissions Own = QFile::ReadOwner | QFile::WriteOwner;

} // namespace

void tst_ReportToken::initTestCase()
{
    QCOMPARE(m_languages.use(QStringLiteral("en")), QString());
}

void tst_ReportToken::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_options = Options();
    m_options.reportUrl = QStringLiteral("https://example.org/reports");
}

void tst_ReportToken::cleanup()
{
    ReportToken::hideVariable();
    QVERIFY(!qEnvironmentVariableIsSet(ReportToken::Variable));
}

QString tst_ReportToken::written(const QByteArray& content, QFile::Permissions permissions) const
{
    QFile file(m_folder->filePath(QStringLiteral("token")));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.setPermissions(permissions)) {
        QTest::qFail(qPrintable(file.errorString()), __FILE__, __LINE__);
    }
    return file.fileName();
}

void tst_ReportToken::nothing()
{
    QCOMPARE(ReportToken(m_options).value(), QByteArray());
    QCOMPARE(ReportToken(m_options).error(), QString());
    // Without an address nobody asks for one.
    m_options.reportUrl.clear();
    m_options.reportTokenFile = QStringLiteral("/nowhere");
    QCOMPARE(ReportToken(m_options).error(), QString());
}

void tst_ReportToken::fromTheFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("token");
    QTest::newRow("a line") << QByteArray("abc.DEF-1_2~3+4/5==\n")
                            << QByteArray("abc.DEF-1_2~3+4/5==");
    QTest::newRow("no line break") << QByteArray("abc") << QByteArray("abc");
    QTest::newRow("of another system") << QByteArray("abc\r\n") << QByteArray("abc");
}

void tst_ReportToken::fromTheFile()
{
    QFETCH(QByteArray, content);
    qputenv(ReportToken::Variable, "of-the-environment"); // the file counts
    m_options.reportTokenFile = written(content, Own | QFile::ReadGroup);
    const ReportToken token(m_options);
    QCOMPARE(token.error(), QString());
    QCOMPARE(token.errorCode(), ExitCode::AllPassed);
    QTEST(token.value(), "token");
}

void tst_ReportToken::fromTheEnvironment()
{
    qputenv(ReportToken::Variable, "abc");
    QCOMPARE(ReportToken(m_options).value(), QByteArray("abc"));
    qputenv(ReportToken::Variable, "");
    QCOMPARE(ReportToken(m_options).value(), QByteArray());
    QCOMPARE(ReportToken(m_options).error(), QString());
    qputenv(ReportToken::Variable, "two words");
    const ReportToken wrong(m_options);
    QVERIFY2(wrong.error().startsWith(QLatin1String(ReportToken::Variable)),
             qPrintable(wrong.error()));
    QCOMPARE(wrong.errorCode(), ExitCode::WrongUsage);
}

void tst_ReportToken::noToken_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blank") << QByteArray(" \n");
    QTest::newRow("another header") << QByteArray("secret\r\nX-Name: value");
    QTest::newRow("two words") << QByteArray("Bearer secret");
    QTest::newRow("no ASCII") << QByteArray("secr\xc3\xa9t");
    QTest::newRow("a NUL") << QByteArray("secret\0x", 8);
}

void tst_ReportToken::noToken()
{
    QFETCH(QByteArray, content);
    m_options.reportTokenFile = written(content, Own);
    const ReportToken token(m_options);
    QCOMPARE(token.value(), QByteArray());
    QVERIFY2(token.error().startsWith(m_options.reportTokenFile), qPrintable(token.error()));
    QVERIFY2(!token.error().contains(QLatin1String("secr")), qPrintable(token.error()));
    QCOMPARE(token.errorCode(), ExitCode::BadInput);
}

void tst_ReportToken::openFile_data()
{
    QTest::addColumn<int>("permission");
    QTest::newRow("read") << int(QFile::ReadOther);
    QTest::newRow("written") << int(QFile::WriteOther);
}

void tst_ReportToken::openFile()
{
    QFETCH(int, permission);
    m_options.reportTokenFile = written("abc", Own | QFile::Permission(permission));
    const ReportToken token(m_options);
    QCOMPARE(token.value(), QByteArray());
    QVERIFY2(token.error().contains(QLatin1String("chmod o= ")), qPrintable(token.error()));
    QCOMPARE(token.errorCode(), ExitCode::BadInput);
}

void tst_ReportToken::noFile()
{
    for (const QString& path : {m_folder->filePath(QStringLiteral("none")), m_folder->path()}) {
        m_options.reportTokenFile = path;
        const ReportToken token(m_options);
        QVERIFY2(token.error().startsWith(path + QLatin1String(" can't be read")),
                 qPrintable(token.error()));
        QCOMPARE(token.errorCode(), ExitCode::BadInput);
    }
    m_options.reportTokenFile = written(QByteArray(5000, 'a'), Own);
    QVERIFY(!ReportToken(m_options).error().isEmpty());
}

void tst_ReportToken::onlyEncrypted_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("encrypted") << "https://example.org" << true;
    QTest::newRow("in the clear") << "http://example.org" << false;
    QTest::newRow("this machine") << "http://localhost:8080/" << true;
    QTest::newRow("by number") << "http://127.0.0.1/" << true;
    QTest::newRow("of IPv6") << "http://[::1]:1/" << true;
    QTest::newRow("looks like it") << "http://localhost.example.org/" << false;
}

void tst_ReportToken::onlyEncrypted()
{
    QFETCH(bool, isTaken);
    QFETCH(QString, url);
    m_options.reportUrl = url;
    qputenv(ReportToken::Variable, "abc");
    const ReportToken token(m_options);
    QCOMPARE(token.value().isEmpty(), !isTaken);
    QCOMPARE(token.error().startsWith(url), !isTaken);
    QCOMPARE(token.errorCode(), isTaken ? ExitCode::AllPassed : ExitCode::WrongUsage);
}

QTEST_GUILESS_MAIN(tst_ReportToken)
#include "tst_ReportToken.moc"
