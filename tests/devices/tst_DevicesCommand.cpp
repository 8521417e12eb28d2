// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/DialogCameras.h"
#include "tests/support/SoundServer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

using namespace TestSupport;

namespace {

constexpr int TimeoutMs = 20000;

struct Listing
{
    int code = -1;
    QString text;
    QJsonObject json;

    int count(const char* kind) const { return json[QLatin1String(kind)].toArray().size(); }
    QString cause(const char* kind) const
    {
        return json[QLatin1String("causes")][QLatin1String(kind)].toString();
    }
};

QByteArray printed(const QStringList& arguments, int* code)
{
    QProcess process;
    process.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
    process.start(QStringLiteral(ENVCHECK_PROGRAM), arguments);
    *code = process.waitForFinished(TimeoutMs) ? process.exitCode() : -1;
    return process.readAllStandardOutput();
}

Listing list()
{
    Listing listing;
    int textCode = -1;
    const QStringList common = {QStringLiteral("devices"), QStringLiteral("--language"),
                                QStringLiteral("en")};
    listing.text = QString::fromUtf8(printed(common, &textCode));
    listing.json = QJsonDocument::fromJson(
                       printed(common + QStringList{QStringLiteral("--json")}, &listing.code))
                       .object();
    return textCode == listing.code ? listing : Listing();
}

} // namespace

// What "envcheck devices" says about real services that have nothing, are gone, or are frozen.
class tst_DevicesCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everythingIsThere();
    void noDevices();
    void killedSoundServer();
    void frozenSoundServer();
#ifdef Q_OS_UNIX // Windows has no service of cameras that could be gone
    void absentCameraService();
    void frozenCameraService();
#endif

private:
    std::unique_ptr<SoundServer> m_sound;
    std::unique_ptr<DialogCameras> m_cameras;
};

void tst_DevicesCommand::init()
{
    m_sound = std::make_unique<SoundServer>(SoundServer::Kind::PulseAudio);
    QVERIFY(m_sound->start());
    const QByteArray soundAddress = qgetenv("PULSE_SERVER");
    m_cameras = std::make_unique<DialogCameras>(); // with an environment that has no sound
    qputenv("PULSE_SERVER", soundAddress);
    QVERIFY2(m_cameras->start(), qPrintable(m_cameras->problem()));
}

void tst_DevicesCommand::cleanup()
{
    m_cameras.reset();
    m_sound.reset();
}

void tst_DevicesCommand::everythingIsThere()
{
    m_cameras->plug(QStringLiteral("desk"), QStringLiteral("Desk camera"));
    const Listing listing = list();
    QCOMPARE(listing.code, 0);
    QCOMPARE(listing.count("cameras"), 1);
    QVERIFY(listing.count("microphones") > 0);
    QVERIFY(listing.count("speakers") > 0);
    for (const char* kind : {"cameras", "microphones", "speakers"}) {
        QVERIFY(listing.json[QLatin1String("causes")][QLatin1String(kind)].isNull());
    }
}

void tst_DevicesCommand::noDevices()
{
    m_sound->control({QStringLiteral("unload-module"), QStringLiteral("module-remap-source")});
    m_sound->control({QStringLiteral("unload-module"), QStringLiteral("module-null-sink")});
    const Listing listing = list();
    QCOMPARE(listing.code, 0);
    for (const char* kind : {"cameras", "microphones", "speakers"}) {
        QCOMPARE(listing.count(kind), 0);
        QCOMPARE(listing.cause(kind), QStringLiteral("absent"));
    }
    QCOMPARE(listing.text.count(QLatin1String("none found")), 3);
}

void tst_DevicesCommand::killedSoundServer()
{
    m_sound->kill();
    const Listing listing = list();
    QCOMPARE(listing.code, 69);
    QCOMPARE(listing.cause("cameras"), QStringLiteral("absent"));
    QCOMPARE(listing.cause("microphones"), QStringLiteral("serverLost"));
    QCOMPARE(listing.cause("speakers"), QStringLiteral("serverLost"));
    QCOMPARE(listing.text.count(QLatin1String("The sound service is not running")), 2);
}

void tst_DevicesCommand::frozenSoundServer()
{
    m_sound->freeze();
    const Listing listing = list();
    m_sound->thaw();
    QCOMPARE(listing.code, 69);
    QCOMPARE(listing.cause("microphones"), QStringLiteral("serverSilent"));
    QCOMPARE(listing.cause("speakers"), QStringLiteral("serverSilent"));
    QCOMPARE(listing.text.count(QLatin1String("The sound service does not answer")), 2);
}

#ifdef Q_OS_UNIX
void tst_DevicesCommand::absentCameraService()
{
    m_cameras->kill();
    const Listing listing = list();
    QCOMPARE(listing.code, 69);
    QCOMPARE(listing.cause("cameras"), QStringLiteral("serverLost"));
    QVERIFY(listing.count("microphones") > 0);
    QVERIFY(listing.text.contains(QLatin1String("The camera service is not running")));
}

void tst_DevicesCommand::frozenCameraService()
{
    m_cameras->freeze();
    const Listing listing = list();
    m_cameras->thaw();
    QCOMPARE(listing.code, 69);
    QCOMPARE(listing.cause("cameras"), QStringLiteral("serverSilent"));
    QVERIFY(listing.count("speakers") > 0);
    QVERIFY(listing.text.contains(QLatin1String("The camera service does not answer")));
}
#endif

QTEST_GUILESS_MAIN(tst_DevicesCommand)
#include "tst_DevicesCommand.moc"
