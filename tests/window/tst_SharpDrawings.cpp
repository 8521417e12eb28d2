// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/window/DisplayServer.h"
#include "tools/images/Pictures.h"

#include <QPainter>
#include <QtTest>

using namespace TestSupport;

namespace {

constexpr QSize ScreenSize(1600, 1200);
constexpr int Factor = 2;
constexpr int Dpi = 96 * Factor;
constexpr int TourMs = 120000;
constexpr int Tolerance = 3; // of a channel
const QString Root = QStringLiteral(ENVCHECK_SOURCE_DIR);
const QRgb White = qRgb(255, 255, 255);

bool isNear(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= Tolerance && qAbs(qGreen(a) - qGreen(b)) <= Tolerance &&
           qAbs(qBlue(a) - qBlue(b)) <= Tolerance;
}

bool isAt(const QImage& screen, const QImage& part, const QPoint& corner)
{
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x) {
            if (!isNear(screen.pixel(corner.x() + x, corner.y() + y), part.pixel(x, y))) {
                return false;
            }
        }
    }
    return true;
}

bool contains(const QImage& screen, const QImage& part)
{
    for (int y = 0; y + part.height() <= screen.height(); ++y) {
        for (int x = 0; x + part.width() <= screen.width(); ++x) {
            if (isAt(screen, part, {x, y})) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

// The program on a screen with a factor of 2: what it shows is drawn from the vectors at this size.
class tst_SharpDrawings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isDrawnFromItsVector_data();
    void isDrawnFromItsVector();

private:
    QTemporaryDir m_folder;
};

void tst_SharpDrawings::initTestCase()
{
    DisplayServer server(DisplayServer::Kind::X11);
    QVERIFY(server.start(ScreenSize));
    QVERIFY(server.setFontDpi(Dpi));
    QProcessEnvironment environment = server.environment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder.path());
    TestProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(ENVCHECK_PROGRAM),
                  {QStringLiteral("--platform"), QStringLiteral("scripted"),
                   QStringLiteral("--language"), QStringLiteral("en"), QStringLiteral("--tour"),
                   m_folder.path()});
    QVERIFY(program.waitForFinished(TourMs));
    QCOMPARE(program.exitCode(), 0);
}

void tst_SharpDrawings::isDrawnFromItsVector_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("stop");
    QTest::addColumn<QRgb>("ground");
    QTest::newRow("arrow") << "drop_down.png"
                           << "camera-picture" << qRgb(0xF7, 0xF7, 0xF7);
    QTest::newRow("record") << "MicN.svg"
                            << "microphone-recorded" << White;
    QTest::newRow("missing headset") << "no_headset.png"
                                     << "speaker-none" << qRgb(242, 242, 242);
    QTest::newRow("unlit segment") << "chunk_back.png"
                                   << "microphone" << White;
}

void tst_SharpDrawings::isDrawnFromItsVector()
{
    QFETCH(QString, file);
    QFETCH(QString, stop);
    QFETCH(QRgb, ground);
    const auto same = [&file](const Picture& picture) { return picture.file == file; };
    const auto picture = std::find_if(sharpPictures().begin(), sharpPictures().end(), same);
    QVERIFY(picture != sharpPictures().end());
    const QString source = isVector(file) ? Root + QLatin1String("/resources/images/") + file
                                          : sourceOfBitmap(Root, file);
    QImage drawn(picture->size * Factor, QImage::Format_RGB32);
    drawn.fill(ground);
    QPainter(&drawn).drawImage(0, 0, renderVector(source, picture->size, Factor));
    const QImage screen = QImage(m_folder.filePath(stop + QLatin1String(".png")))
                              .convertToFormat(QImage::Format_RGB32);
    QVERIFY(!screen.isNull());
    QVERIFY(contains(screen, drawn));
}

QTEST_GUILESS_MAIN(tst_SharpDrawings)
#include "tst_SharpDrawings.moc"
