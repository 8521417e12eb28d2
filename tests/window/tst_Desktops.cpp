// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/window/DisplayServer.h"

#include <QDir>
#include <QtTest>

#include <map>

using namespace TestSupport;

namespace {

constexpr QSize ScreenSize(1280, 1024);
constexpr int TourMs = 120000;
const QString Plain = QStringLiteral("plain");

// Another style, and letters that are too large for the pages.
constexpr char Qt5ctSettings[] = "[Appearance]\n"
                                 "style=Windows\n"
                                 "[Fonts]\n"
                                 "fixed=\"DejaVu Sans Mono,20,-1,5,50,0,0,0,0,0\"\n"
                                 "general=\"Sans Serif,20,-1,5,50,0,0,0,0,0\"\n";

} // namespace

// The program on desktops with colours, styles and fonts of their own: it looks as on one without.
class tst_Desktops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void changeNothing_data();
    void changeNothing();

private:
    // Each on a screen of its own, because a list takes the mouse.
    struct Tour
    {
        DisplayServer server{DisplayServer::Kind::X11};
        TestProcess program;
    };

    void startTour(const QString& desktop, const QString& variable, const QString& value);
    QImage picture(const QString& desktop, const QString& stop) const;

    QTemporaryDir m_folder;
    std::map<QString, Tour> m_tours;
};

// All at once: a tour waits far more than it works.
void tst_Desktops::initTestCase()
{
    startTour(Plain, QString(), QString());
    startTour(QStringLiteral("dark"), QStringLiteral("QT_STYLE_OVERRIDE"),
              QStringLiteral("adwaita-dark"));
    startTour(QStringLiteral("contrast"), QStringLiteral("QT_STYLE_OVERRIDE"),
              QStringLiteral("adwaita-highcontrastinverse"));
    startTour(QStringLiteral("qt5ct"), QStringLiteral("QT_QPA_PLATFORMTHEME"),
              QStringLiteral("qt5ct"));
    for (auto& [desktop, tour] : m_tours) {
        QVERIFY2(tour.program.waitForFinished(TourMs), qPrintable(desktop));
        QVERIFY2(tour.program.exitCode() == 0, tour.program.readAllStandardError().constData());
    }
}

void tst_Desktops::startTour(const QString& desktop, const QString& variable, const QString& value)
{
    const QString home = m_folder.filePath(desktop);
    QVERIFY(QDir().mkpath(home + QStringLiteral("/qt5ct")));
    QFile settings(home + QStringLiteral("/qt5ct/qt5ct.conf"));
    QVERIFY(settings.open(QIODevice::WriteOnly) && settings.write(Qt5ctSettings) > 0);
    settings.close();
    Tour& tour = m_tours[desktop];
    QVERIFY(tour.server.start(ScreenSize));
    QProcessEnvironment environment = tour.server.environment();
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
        environment.insert(QLatin1String(name), home);
    }
    if (!variable.isEmpty()) {
        environment.insert(variable, value);
    }
    tour.program.setProcessEnvironment(environment);
    tour.program.start(QStringLiteral(ENVCHECK_PROGRAM),
                       {QStringLiteral("--platform"), QStringLiteral("scripted"),
                        QStringLiteral("--language"), QStringLiteral("en"),
                        QStringLiteral("--tour"), home});
}

QImage tst_Desktops::picture(const QString& desktop, const QString& stop) const
{
    return QImage(m_folder.filePath(desktop + QLatin1Char('/') + stop + QStringLiteral(".png")))
        .convertToFormat(QImage::Format_RGB32);
}

void tst_Desktops::changeNothing_data()
{
    QTest::addColumn<QString>("desktop");
    QTest::addColumn<QString>("stop");
    for (const char* desktop : {"dark", "contrast", "qt5ct"}) {
        // Those without moving parts.
        for (const char* stop : {"network", "camera-none", "speaker-none", "microphone-none",
                                 "question", "result-failed"}) {
            QTest::addRow("%s, %s", desktop, stop) << desktop << stop;
        }
    }
}

void tst_Desktops::changeNothing()
{
    QFETCH(QString, desktop);
    QFETCH(QString, stop);
    const QImage expected = picture(Plain, stop);
    QVERIFY(!expected.isNull());
    QCOMPARE(picture(desktop, stop), expected);
}

QTEST_GUILESS_MAIN(tst_Desktops)
#include "tst_Desktops.moc"
