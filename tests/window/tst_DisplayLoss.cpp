// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportJson.h"
#include "tests/window/DisplayServer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>
#include <QtTest>

#include <csignal>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace TestSupport;

namespace {

constexpr int LongMs = 20000;
constexpr QSize ScreenSize(1366, 768);
constexpr QRect WindowPlace(372, 153, 622, 462); // without a window manager
constexpr QPoint NextButton(540, 441);
constexpr QPoint YesButton(396, 441);

QProcessEnvironment withoutDisplays()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QLatin1String(name));
    }
    return environment;
}

} // namespace

// The program where its display or its terminal goes away, or was never there.
class tst_DisplayLoss : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void answersAreReported_data();
    void answersAreReported();
    void closedTerminal();
    void nohup();
    void noSuchDisplay_data();
    void noSuchDisplay();
    void silentDisplay();
    void secondKindOfDisplay();

private:
    QString file(const char* name) const { return m_home->filePath(QLatin1String(name)); }
    QStringList arguments() const;
    std::unique_ptr<TestProcess> started(const QProcessEnvironment& environment) const;
    bool isMeasured() const; // the dialog has been open for a while
    QJsonObject report() const;
    void answerCamera(const DisplayServer& server) const;

    std::unique_ptr<QTemporaryDir> m_home;
};

void tst_DisplayLoss::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
}

QStringList tst_DisplayLoss::arguments() const
{
    return {QStringLiteral("--scenario"), QStringLiteral("all-well"), QStringLiteral("--language"),
            QStringLiteral("en"),         QStringLiteral("--report"), file("report.json"),
            QStringLiteral("--results"),  file("results.json")};
}

std::unique_ptr<TestProcess> tst_DisplayLoss::started(const QProcessEnvironment& environment) const
{
    auto program = std::make_unique<TestProcess>();
    QProcessEnvironment own = environment;
    own.insert(QStringLiteral("XDG_DATA_HOME"), m_home->path());
    program->setProcessEnvironment(own);
    program->start(QStringLiteral(ENVCHECK_PROGRAM), arguments());
    return program;
}

bool tst_DisplayLoss::isMeasured() const
{
    QFile results(file("results.json"));
    return results.open(QIODevice::ReadOnly) && results.readAll().contains("delay");
}

QJsonObject tst_DisplayLoss::report() const
{
    QFile content(file("report.json"));
    return content.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(content.readAll()).object()
                                             : QJsonObject();
}

void tst_DisplayLoss::answerCamera(const DisplayServer& server) const
{
    const auto click = [&server](const QPoint& button) {
        const QPoint place = WindowPlace.topLeft() + button;
        return server.type({QStringLiteral("mousemove"), QString::number(place.x()),
                            QString::number(place.y()), QStringLiteral("click"),
                            QStringLiteral("1")});
    };
    QVERIFY(click(NextButton));
    const auto isAnswered = [&] {
        QFile results(file("results.json"));
        return click(YesButton) && results.open(QIODevice::ReadOnly) &&
               results.readAll().contains("userState");
    };
    QVERIFY(QTest::qWaitFor(isAnswered, LongMs));
}

void tst_DisplayLoss::answersAreReported_data()
{
    QTest::addColumn<bool>("isWayland");
    QTest::newRow("X server") << false;
    QTest::newRow("Wayland compositor") << true;
}

void tst_DisplayLoss::answersAreReported()
{
    QFETCH(bool, isWayland);
    DisplayServer server(isWayland ? DisplayServer::Kind::Wayland : DisplayServer::Kind::X11);
    QVERIFY(server.start(ScreenSize));
    const auto program = started(server.environment());
    QTRY_VERIFY_WITH_TIMEOUT(isMeasured(), LongMs);
    if (!isWayland) {
        answerCamera(server);
    }
    server.kill();
    QVERIFY(program->waitForFinished(LongMs));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 69);
    const QByteArray output = program->readAll();
    QVERIFY2(output.contains("envcheck: the display has gone"), output.constData());
    QVERIFY2(!output.contains("connection"), output.constData()); // Qt's own words
    QString error;
    QVERIFY2(ReportJson::fromJson(report(), &error), qPrintable(error));
    const QJsonArray checks = report().value(QStringLiteral("checks")).toArray();
    const QString passed = QStringLiteral("passed");
    QCOMPARE(checks.at(0).toObject().value(QStringLiteral("verdict")).toString(), passed);
    if (!isWayland) {
        const QJsonObject camera = checks.at(1).toObject();
        QCOMPARE(camera.value(QStringLiteral("answer")).toString(), QStringLiteral("yes"));
        QCOMPARE(camera.value(QStringLiteral("verdict")).toString(), passed);
    }
}

// As a terminal does when its window is closed.
void tst_DisplayLoss::closedTerminal()
{
    std::vector<QByteArray> words{QByteArray(ENVCHECK_PROGRAM)};
    for (const QString& argument : arguments()) {
        words.push_back(argument.toLocal8Bit());
    }
    std::vector<char*> pointers;
    for (QByteArray& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    const QByteArray folder = m_home->path().toLocal8Bit();
    int terminal = -1;
    const pid_t program = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (program == 0) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("XDG_DATA_HOME", folder.constData(), 1);
        execv(pointers.at(0), pointers.data());
        _exit(EXIT_FAILURE);
    }
    QVERIFY(program > 0);
    QTRY_VERIFY_WITH_TIMEOUT(isMeasured(), LongMs);
    ::close(terminal);
    ::kill(program, SIGHUP); // the second one, by the shell
    int status = 0;
    const auto hasEnded = [&] { return waitpid(program, &status, WNOHANG) == program; };
    QVERIFY(QTest::qWaitFor(hasEnded, LongMs));
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 2);
    QString error;
    QVERIFY2(ReportJson::fromJson(report(), &error), qPrintable(error));
}

void tst_DisplayLoss::nohup()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    std::signal(SIGHUP, SIG_IGN);
    const auto program = started(environment);
    std::signal(SIGHUP, SIG_DFL);
    QTRY_VERIFY_WITH_TIMEOUT(isMeasured(), LongMs);
    program->sendSignal(SIGHUP);
    program->sendSignal(SIGTERM);
    QVERIFY(program->waitForFinished(LongMs));
    QCOMPARE(program->exitCode(), 2);
    QVERIFY2(program->readAll().contains("The report is in"), "its output is still read");
}

void tst_DisplayLoss::noSuchDisplay_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QString>("value");
    QTest::newRow("X11") << QByteArray("DISPLAY") << QStringLiteral(":4711");
    QTest::newRow("X11, no number") << QByteArray("DISPLAY") << QStringLiteral("nonsense");
    QTest::newRow("Wayland") << QByteArray("WAYLAND_DISPLAY") << QStringLiteral("wayland-4711");
    QTest::newRow("no such kind") << QByteArray("QT_QPA_PLATFORM") << QStringLiteral("moon");
}

void tst_DisplayLoss::noSuchDisplay()
{
    QFETCH(QByteArray, variable);
    QFETCH(QString, value);
    QProcessEnvironment environment = withoutDisplays();
    environment.insert(QString::fromLatin1(variable), value);
    const auto program = started(environment);
    QVERIFY(program->waitForFinished(LongMs));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 69);
    const QString output = QString::fromUtf8(program->readAll());
    QVERIFY2(output.startsWith(QStringLiteral("envcheck: the display %1 ").arg(value)),
             qPrintable(output));
    QCOMPARE(output.count(QLatin1Char('\n')), 1);
}

void tst_DisplayLoss::silentDisplay()
{
    constexpr int FirstPort = 6000; // of X11 on TCP, for display 0
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QVERIFY(server.serverPort() > FirstPort);
    const QString display = QStringLiteral("127.0.0.1:%1").arg(server.serverPort() - FirstPort);
    QProcessEnvironment environment = withoutDisplays();
    environment.insert(QStringLiteral("DISPLAY"), display);
    const auto program = started(environment);
    QVERIFY(program->waitForFinished(LongMs));
    QCOMPARE(program->exitCode(), 69);
    const QString output = QString::fromUtf8(program->readAll());
    QVERIFY2(output.startsWith(QStringLiteral("envcheck: the display %1 ").arg(display)),
             qPrintable(output));
}

void tst_DisplayLoss::secondKindOfDisplay()
{
    DisplayServer server(DisplayServer::Kind::X11);
    QVERIFY(server.start(ScreenSize));
    QProcessEnvironment environment = server.environment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("/no/such/compositor"));
    environment.insert(QStringLiteral("XDG_SESSION_TYPE"), QStringLiteral("wayland"));
    const auto program = started(environment);
    QTRY_VERIFY_WITH_TIMEOUT(isMeasured(), LongMs);
    program->sendSignal(SIGTERM);
    QVERIFY(program->waitForFinished(LongMs));
    QCOMPARE(program->exitCode(), 2);
}

QTEST_GUILESS_MAIN(tst_DisplayLoss)
#include "tst_DisplayLoss.moc"
