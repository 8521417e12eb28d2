// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/ScreenFit.h"
#include "tests/window/DisplayServer.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>

using namespace TestSupport;

namespace {

constexpr int LongMs = 20000;
constexpr int DpiOfOne = 96;
constexpr int RoundingPixels = 2;
constexpr int SharpStep = 110; // of grey between neighbours, at least once

struct Window
{
    QString id;
    QRect place;
};

// The strongest step from one pixel to the next in a row of text.
int strongestStep(const QImage& picture)
{
    int strongest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 1; x < picture.width(); ++x) {
            strongest = std::max(strongest,
                                 qAbs(qGray(picture.pixel(x, y)) - qGray(picture.pixel(x - 1, y))));
        }
    }
    return strongest;
}

} // namespace

// The program on screens of several sizes and scales. ENVCHECK_PICTURES names a folder for pictures
// of its windows.
class tst_ScreenFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowFitsItsScreen_data();
    void windowFitsItsScreen();

private:
    static Window windowOn(const DisplayServer& server);
};

void tst_ScreenFit::windowFitsItsScreen_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<int>("percent");
    for (const QSize screen : {QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160)}) {
        for (const int percent : {100, 125, 150, 175, 200, 300}) {
            QTest::addRow("%dx%d, %d %%", screen.width(), screen.height(), percent)
                << screen << percent;
        }
    }
}

Window tst_ScreenFit::windowOn(const DisplayServer& server)
{
    static const QRegularExpression pattern(QStringLiteral(
        "WINDOW=(\\d+)\\s+X=(-?\\d+)\\s+Y=(-?\\d+)\\s+WIDTH=(\\d+)\\s+HEIGHT=(\\d+)"));
    const QString text =
        server.output(QStringLiteral("xdotool"),
                      {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                       QStringLiteral("--class"), QStringLiteral("envcheck"),
                       QStringLiteral("getwindowgeometry"), QStringLiteral("--shell")});
    const QRegularExpressionMatch match = pattern.match(text);
    return {match.captured(1), QRect(match.captured(2).toInt(), match.captured(3).toInt(),
                                     match.captured(4).toInt(), match.captured(5).toInt())};
}

void tst_ScreenFit::windowFitsItsScreen()
{
    QFETCH(QSize, screen);
    QFETCH(int, percent);
    const QTemporaryDir home;
    DisplayServer server(DisplayServer::Kind::X11);
    QVERIFY(server.start(screen));
    QVERIFY(server.setFontDpi(DpiOfOne * percent / 100));

    TestProcess program;
    QProcessEnvironment environment = server.environment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(ENVCHECK_PROGRAM),
                  {QStringLiteral("--scenario"), QStringLiteral("all-well"),
                   QStringLiteral("--language"), QStringLiteral("en")});
    Window window;
    QTRY_VERIFY_WITH_TIMEOUT(!(window = windowOn(server)).place.isEmpty(), LongMs);
    QVERIFY2(QRect(QPoint(), screen).contains(window.place), "it is larger than the screen");

    const double fit = std::min(double(screen.width()) / ScreenFit::WindowSize.width(),
                                double(screen.height()) / ScreenFit::WindowSize.height());
    const double factor = std::min(percent / 100.0, fit);
    const QSizeF expected = QSizeF(ScreenFit::WindowSize) * factor;
    QVERIFY2(
        std::abs(window.place.width() - expected.width()) <= RoundingPixels + 1 &&
            std::abs(window.place.height() - expected.height()) <= RoundingPixels + 1,
        qPrintable(QStringLiteral("%1 x %2").arg(window.place.width()).arg(window.place.height())));

    const QString folder =
        qEnvironmentVariable("ENVCHECK_PICTURES", home.filePath(QStringLiteral("pictures")));
    QVERIFY(QDir().mkpath(folder));
    const QString file = QStringLiteral("%1/screen-%2x%3-%4.png")
                             .arg(folder)
                             .arg(screen.width())
                             .arg(screen.height())
                             .arg(percent);
    int step = 0;
    const auto isSharp = [&] {
        server.output(QStringLiteral("import"), {QStringLiteral("-window"), window.id, file});
        step = strongestStep(
            QImage(file).copy(QRect(QPoint(10, 5) * factor, QSize(120, 34) * factor)));
        return step >= SharpStep;
    };
    QVERIFY2(QTest::qWaitFor(isSharp, LongMs), qPrintable(QString::number(step)));
    qInfo("| %d x %d | %d %% | %d x %d |", screen.width(), screen.height(), percent,
          window.place.width(), window.place.height());
    program.terminate();
    QVERIFY(program.waitForFinished(LongMs));
}

QTEST_GUILESS_MAIN(tst_ScreenFit)
#include "tst_ScreenFit.moc"
