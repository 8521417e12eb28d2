// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Configuration.h"
#include "host/Languages.h"
#include "host/Options.h"
#include "host/ReportToken.h"

#include <QTemporaryDir>
#include <QtTest>

// The files of the user and of the system, and the environment.
class tst_Configuration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void nothing();
    void firstOneCounts_data();
    void firstOneCounts();
    void bothKeys();
    void emptyValueHides();
    void scriptedDevicesTakeNothing();
    void reportUrlIsOfTheCheck();
    void tokenFile();
    void badFiles_data();
    void badFiles();
    void unusedFileIsNotRead();
    void noOrdinaryFile();
    void badVariable();
    void usualFiles();

private:
    QString written(const char* name, const QByteArray& content) const;
    Configuration configured(Options& options) const;

    Languages m_languages;
    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

QString id(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace

void tst_Configuration::initTestCase()
{
    QCOMPARE(m_languages.use(id("en")), QString());
}

void tst_Configuration::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qunsetenv(Configuration::ServerVariable);
}

void tst_Configuration::cleanup()
{
    qunsetenv(Configuration::ServerVariable);
}

QString tst_Configuration::written(const char* name, const QByteArray& content) const
{
    QFile file(m_folder->filePath(id(name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        QTest::qFail(qPrintable(file.errorString()), __FILE__, __LINE__);
    }
    return file.fileName();
}

Configuration tst_Configuration::configured(Options& options) const
{
    Configuration configuration(
        {m_folder->filePath(id("user.conf")), m_folder->filePath(id("system.conf"))});
    configuration.complete(options);
    return configuration;
}

void tst_Configuration::nothing()
{
    Options options;
    QCOMPARE(configured(options).error(), QString());
    QCOMPARE(options.server, QString());
    QCOMPARE(options.reportUrl, QString());
}

void tst_Configuration::firstOneCounts_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("server");
    const auto row = [](const char* title, const char* option, const char* variable,
                        const char* user, const char* system, const char* server) {
        QTest::newRow(title) << id(option) << id(variable) << id(user) << id(system) << id(server);
    };
    row("option", "o.test", "e.test", "u.test", "s.test", "o.test");
    row("environment", "", "e.test", "u.test", "s.test", "e.test");
    row("user", "", "", "u.test", "s.test", "u.test");
    row("system", "", "", "", "s.test", "s.test");
    row("address of IPv6", "", "", "[2001:db8::1]:5", "", "[2001:db8::1]:5");
    row("with scheme", "", "", "stun:u.test:19302", "", "stun:u.test:19302");
    row("blanks around it", "", "", "  u.test ", "", "u.test");
    row("in quotes", "", "", "\"u.test\"", "", "u.test");
    row("comment behind it", "", "", "u.test ; ours", "", "u.test");
}

void tst_Configuration::firstOneCounts()
{
    QFETCH(QString, option);
    QFETCH(QString, variable);
    QFETCH(QString, user);
    QFETCH(QString, system);
    if (!variable.isEmpty()) {
        qputenv(Configuration::ServerVariable, variable.toUtf8());
    }
    if (!user.isEmpty()) {
        written("user.conf", "; a comment\nserver=" + user.toUtf8() + "\n");
    }
    if (!system.isEmpty()) {
        written("system.conf", "[General]\nserver = " + system.toUtf8());
    }
    Options options;
    options.server = option;
    QCOMPARE(configured(options).error(), QString());
    QTEST(options.server, "server");
}

void tst_Configuration::bothKeys()
{
    written("user.conf", "server=u.test\n");
    written("system.conf", "server=s.test\nreport-url=https://s.test/a?b=1,2\n");
    Options options;
    QCOMPARE(configured(options).error(), QString());
    QCOMPARE(options.server, id("u.test"));
    QCOMPARE(options.reportUrl, id("https://s.test/a?b=1,2"));
}

// How a user does without the server of the system.
void tst_Configuration::emptyValueHides()
{
    written("user.conf", "server=\n");
    written("system.conf", "server=s.test\n");
    Options options;
    QCOMPARE(configured(options).error(), QString());
    QCOMPARE(options.server, QString());
}

void tst_Configuration::scriptedDevicesTakeNothing()
{
    written("user.conf", "server=u.test\nreport-url=https://u.test\n");
    qputenv(Configuration::ServerVariable, "e.test");
    Options options;
    options.platform = Options::Platform::Scripted;
    QCOMPARE(configured(options).error(), QString());
    QCOMPARE(options.server, QString());
    QCOMPARE(options.reportUrl, QString());
}

void tst_Configuration::reportUrlIsOfTheCheck()
{
    written("user.conf", "server=u.test\nreport-url=https://u.test\n");
    Options options;
    options.command = Options::Command::Network;
    QCOMPARE(configured(options).error(), QString());
    QCOMPARE(options.server, id("u.test"));
    QCOMPARE(options.reportUrl, QString());
}

// The environment has a token already, or nothing is posted: then the file isn't looked for.
void tst_Configuration::tokenFile()
{
    written("system.conf",
            "server=s.test\nreport-url=https://s.test\nreport-token-file=/etc/token\n");
    Options options;
    QCOMPARE(configured(options).error(), QString());
    QCOMPARE(options.reportTokenFile, id("/etc/token"));
    Options named;
    named.reportTokenFile = id("mine");
    QCOMPARE(configured(named).error(), QString());
    QCOMPARE(named.reportTokenFile, id("mine"));
    qputenv(ReportToken::Variable, "abc");
    Options withVariable;
    QCOMPARE(configured(withVariable).error(), QString());
    QCOMPARE(withVariable.reportTokenFile, QString());
    qunsetenv(ReportToken::Variable);
    written("user.conf", "report-url=\n");
    Options without;
    QCOMPARE(configured(without).error(), QString());
    QCOMPARE(without.reportTokenFile, QString());
    without.reportTokenFile = id("mine");
    const Configuration needless = configured(without);
    QVERIFY2(needless.error().contains(id("--report-url")), qPrintable(needless.error()));
    QCOMPARE(needless.errorCode(), ExitCode::WrongUsage);
}

void tst_Configuration::badFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("named");
    const auto row = [](const char* title, const QByteArray& content, const char* named) {
        QTest::newRow(title) << content << id(named);
    };
    row("no server", "server=http://u.test\n", "server=http://u.test: it takes HOST");
    row("bad port", "server=u.test:0\n", "server=u.test:0: it takes HOST");
    row("no address", "report-url=ftp://u.test\n", "report-url=ftp://u.test: it takes an http");
    row("unknown key", "sever=u.test\n",
        "unknown key sever; the keys are server, report-url and report-token-file");
    row("key in a section", "[network]\nserver=u.test\n", "unknown key network/server");
    row("no key", "=u.test\n", "unknown key");
    row("no value", "server\n", "every line must be KEY=VALUE");
    row("another comment", "# server\nserver=u.test\n", "a comment after a semicolon");
    row("no text", QByteArray("\xff\xfe\x00\x01server", 10), "every line must be KEY=VALUE");
    row("too large", "server=u.test\n" + QByteArray(70000, ';'), "it can't be read");
}

void tst_Configuration::badFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, named);
    const QString file = written("system.conf", content);
    Options options;
    const Configuration configuration = configured(options);
    const QString error = configuration.error();
    QVERIFY2(error.startsWith(file + id(": ")), qPrintable(error));
    QVERIFY2(error.contains(named), qPrintable(error));
    QVERIFY(!error.contains(QLatin1Char('\n')));
    QCOMPARE(configuration.errorCode(), ExitCode::BadInput);
}

// A user can go on although the file of the system is broken.
void tst_Configuration::unusedFileIsNotRead()
{
    written("user.conf", "server=u.test\nreport-url=\n");
    written("system.conf", "nonsense\n");
    Options options;
    QCOMPARE(configured(options).error(), QString());
    QCOMPARE(options.server, id("u.test"));
}

void tst_Configuration::noOrdinaryFile()
{
    QVERIFY(QDir().mkdir(m_folder->filePath(id("user.conf"))));
    Options options;
    const Configuration configuration = configured(options);
    QVERIFY(configuration.error().contains(id("user.conf: it can't be read")));
    QCOMPARE(configuration.errorCode(), ExitCode::BadInput);
}

void tst_Configuration::badVariable()
{
    qputenv(Configuration::ServerVariable, "http://e.test");
    written("user.conf", "server=u.test\n");
    Options options;
    const Configuration configuration = configured(options);
    QVERIFY2(configuration.error().startsWith(id("ENVCHECK_SERVER=http://e.test: it takes HOST")),
             qPrintable(configuration.error()));
    QCOMPARE(configuration.errorCode(), ExitCode::WrongUsage);
}

void tst_Configuration::usualFiles()
{
    const QStringList files = Configuration::usualFiles();
    QVERIFY(files.size() > 1);
    for (const QString& file : files) {
        QVERIFY2(file.endsWith(id("/envcheck.conf")), qPrintable(file));
    }
}

QTEST_GUILESS_MAIN(tst_Configuration)
#include "tst_Configuration.moc"
