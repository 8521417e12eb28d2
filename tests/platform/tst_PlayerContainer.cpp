// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/LumCameraBase.h>
#include <CommEngine/PlayerContainer.h>

#include "platform/backend/CameraCause.h"
#include "tests/support/TimerTools.h"

#include <QFontDatabase>
#include <QTranslator>
#include <QtTest>
#include <cmath>

using Platform::CameraCause;
using Kind = CameraCause::Kind;

namespace {

const QSize PreviewSize(306, 172);
const QRgb Empty = qRgb(242, 242, 242);
constexpr int QuietPixels = 4; // at each side of the preview

const std::pair<Kind, const char*> Causes[] = {{Kind::Starting, "ID_Engine_Camera_Starting"},
                                               {Kind::Absent, "ID_Engine_Camera_Absent"},
                                               {Kind::Busy, "ID_Engine_Camera_Busy"},
                                               {Kind::Denied, "ID_Engine_Camera_Denied"},
                                               {Kind::Hung, "ID_Engine_Camera_Hung"},
                                               {Kind::Stalled, "ID_Engine_Camera_Stalled"},
                                               {Kind::Black, "ID_Engine_Camera_Black"},
                                               {Kind::Unplugged, "ID_Engine_Camera_Unplugged"},
                                               {Kind::NotBuilt, "ID_Engine_Camera_NotBuilt"},
                                               {Kind::ServerLost, "ID_Engine_Camera_ServerLost"},
                                               {Kind::Failed, "ID_Engine_Camera_Failed"},
                                               {Kind::Unreadable, "ID_Engine_Camera_Unreadable"}};

// Columns of black and white in turn: any scaling or smoothing shows.
QImage stripes(const QSize& size)
{
    QImage result(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            result.setPixel(x, y, x % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        }
    }
    return result;
}

class StillCamera final : public LumCameraBase
{
public:
    QImage latestFrame() const override { return picture; }
    CameraCause cause() const override { return reason; }
    void setPreviewPixelRatio(qreal ratio) override { previewRatio = ratio; }

    void tell(const CameraCause& cause)
    {
        reason = cause;
        Q_EMIT causeChanged();
    }

    QImage picture;
    CameraCause reason;
    qreal previewRatio = 0.0;
};

QImage shot(PlayerContainer& player, qreal ratio = 1.0)
{
    QImage result((QSizeF(PreviewSize) * ratio).toSize(), QImage::Format_RGB32);
    result.setDevicePixelRatio(ratio);
    result.fill(Empty);
    player.render(&result);
    result.setDevicePixelRatio(1.0);
    return result;
}

// By the definition of WCAG 2.1
double luminance(QRgb color)
{
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(color)) + 0.7152 * part(qGreen(color)) + 0.0722 * part(qBlue(color));
}

double contrast(QRgb dark, QRgb light)
{
    return (luminance(light) + 0.05) / (luminance(dark) + 0.05);
}

QRgb darkest(const QImage& image)
{
    QRgb result = qRgb(255, 255, 255);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            result = luminance(image.pixel(x, y)) < luminance(result) ? image.pixel(x, y) : result;
        }
    }
    return result;
}

QRect inkOf(const QImage& image)
{
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != Empty) {
                result |= QRect(x, y, 1, 1);
            }
        }
    }
    return result;
}

// Of the language, as long as it lives.
class Language
{
public:
    explicit Language(const QString& name)
    {
        isLoaded = m_translator.load(QCoreApplication::applicationDirPath() +
                                     QStringLiteral("/translations/envcheck_%1.qm").arg(name));
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Language() { QCoreApplication::removeTranslator(&m_translator); }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

    bool isLoaded = false;

private:
    QTranslator m_translator;
};

} // namespace

class tst_PlayerContainer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void showsPicturesUnscaled_data();
    void showsPicturesUnscaled();
    void centresNarrowPictures();
    void enlargesSmallPictures();
    void isEmptyUnlessPlaying();
    void tellsTheCameraItsRatio();
    void repaintsForPictures();
    void outlivesItsCamera();
    void saysWhyThereIsNoPicture_data();
    void saysWhyThereIsNoPicture();
    void saysItAlsoWhileStopped();
    void fitsInEveryLanguage_data();
    void fitsInEveryLanguage();
    void namesTheProgramAsPlainText_data();
    void namesTheProgramAsPlainText();
    void coversABlackPicture();
    void turnsOnlyWhileStarting();

private:
    std::unique_ptr<StillCamera> m_camera;
    std::unique_ptr<PlayerContainer> m_player;
};

void tst_PlayerContainer::init()
{
    m_camera = std::make_unique<StillCamera>();
    m_player = std::make_unique<PlayerContainer>(nullptr);
    m_player->setStyleSheet(QStringLiteral("background-color: rgb(242, 242, 242);"));
    m_player->setFixedSize(PreviewSize);
    m_player->attachCamera(m_camera.get());
    m_player->play();
}

void tst_PlayerContainer::showsPicturesUnscaled_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.25") << 1.25;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void tst_PlayerContainer::showsPicturesUnscaled()
{
    QFETCH(qreal, ratio);
    m_camera->picture = stripes((QSizeF(PreviewSize) * ratio).toSize());
    const QRect whole(QPoint(), m_camera->picture.size() - QSize(1, 1)); // without a half pixel
    QCOMPARE(shot(*m_player, ratio).copy(whole), m_camera->picture.copy(whole));
}

void tst_PlayerContainer::centresNarrowPictures()
{
    m_camera->picture = stripes(QSize(228, 172));
    const QImage seen = shot(*m_player);
    QCOMPARE(seen.copy(39, 0, 228, 172), m_camera->picture);
    QCOMPARE(seen.pixel(38, 86), Empty);
    QCOMPARE(seen.pixel(267, 86), Empty);
}

void tst_PlayerContainer::enlargesSmallPictures()
{
    m_camera->picture = QImage(153, 86, QImage::Format_RGB32);
    m_camera->picture.fill(Qt::red);
    const QImage seen = shot(*m_player);
    QCOMPARE(seen.pixel(0, 0), qRgb(255, 0, 0));
    QCOMPARE(seen.pixel(305, 171), qRgb(255, 0, 0));
}

void tst_PlayerContainer::isEmptyUnlessPlaying()
{
    const QImage empty = shot(*m_player); // no picture yet
    QCOMPARE(empty.pixel(150, 80), Empty);
    m_camera->picture = stripes(PreviewSize);
    m_player->stop();
    QCOMPARE(shot(*m_player), empty);
    m_player->play();
    QCOMPARE(shot(*m_player), m_camera->picture);
    m_player->attachCamera(nullptr);
    QCOMPARE(shot(*m_player), empty);
}

void tst_PlayerContainer::tellsTheCameraItsRatio()
{
    QCOMPARE(m_camera->previewRatio, m_player->devicePixelRatioF());
    m_camera->previewRatio = 0.0; // as if the window had gone to another screen
    shot(*m_player);
    QCOMPARE(m_camera->previewRatio, m_player->devicePixelRatioF());
}

void tst_PlayerContainer::repaintsForPictures()
{
    m_player->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_player.get()));
    m_camera->picture = stripes(PreviewSize);
    Q_EMIT m_camera->frameArrived();
    QTRY_COMPARE(m_player->grab().toImage().convertToFormat(QImage::Format_RGB32),
                 m_camera->picture);
}

void tst_PlayerContainer::outlivesItsCamera()
{
    m_camera->picture = stripes(PreviewSize);
    m_camera.reset();
    QCOMPARE(shot(*m_player).pixel(150, 80), Empty);
}

void tst_PlayerContainer::saysWhyThereIsNoPicture_data()
{
    QTest::addColumn<int>("cause");
    QTest::addColumn<QString>("id");
    for (const auto& [cause, id] : Causes) {
        QTest::newRow(id) << static_cast<int>(cause) << QString::fromLatin1(id);
    }
}

void tst_PlayerContainer::saysWhyThereIsNoPicture()
{
    QFETCH(int, cause);
    QFETCH(QString, id);
    const QImage empty = shot(*m_player);
    QVERIFY(inkOf(empty).isEmpty());
    m_camera->tell({Kind(cause), {}});
    QCOMPARE(m_player->accessibleDescription(), qtTrId(id.toLatin1().constData()));
    const QImage seen = shot(*m_player);
    QVERIFY(!inkOf(seen).isEmpty());
    const double least = 4.5;
    QVERIFY(contrast(darkest(seen), Empty) > least);
    m_camera->tell({});
    QCOMPARE(m_player->accessibleDescription(), QString());
    QCOMPARE(shot(*m_player), empty);
}

// The page stops the preview of a camera that can't be used.
void tst_PlayerContainer::saysItAlsoWhileStopped()
{
    m_player->stop();
    m_camera->reason = {Kind::Denied, {}};
    m_player->stop();
    QCOMPARE(m_player->accessibleDescription(), QStringLiteral("ID_Engine_Camera_Denied"));
    QVERIFY(!inkOf(shot(*m_player)).isEmpty());
    m_camera.reset();
    QCOMPARE(m_player->accessibleDescription(), QString());
    QVERIFY(inkOf(shot(*m_player)).isEmpty());
}

void tst_PlayerContainer::fitsInEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = QStringLiteral(ENVCHECK_LANGUAGES).split(QLatin1Char(' '));
    for (const QString& language : languages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_PlayerContainer::fitsInEveryLanguage()
{
    QFETCH(QString, language);
    const Language texts(language);
    QVERIFY(texts.isLoaded);
    const QRect room =
        QRect(QPoint(), PreviewSize).adjusted(QuietPixels, QuietPixels, -QuietPixels, -QuietPixels);
    for (const auto& [cause, id] : Causes) {
        for (const QString& program : {QString(), QString(10000, QLatin1Char('W'))}) {
            if (program.isEmpty() || cause == Kind::Busy) {
                m_camera->tell({cause, program});
                QVERIFY(!m_player->accessibleDescription().startsWith(QLatin1String("ID_")));
                const QRect ink = inkOf(shot(*m_player));
                QVERIFY2(room.contains(ink), id);
            }
        }
    }
}

void tst_PlayerContainer::namesTheProgramAsPlainText_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("shown");
    const QString text = QStringLiteral("\u2068%1\u2069 is using the camera.\nClose that program.");
    QTest::newRow("plain") << QStringLiteral("meeting") << text.arg(QStringLiteral("meeting"));
    const QString markup = QStringLiteral("<b>a</b> & %1");
    QTest::newRow("markup") << markup << QString(text).replace(QStringLiteral("%1"), markup);
    QTest::newRow("directions") << QStringLiteral("\u202Eabc\u2069\u200F")
                                << text.arg(QStringLiteral("abc"));
    QTest::newRow("lines") << QStringLiteral("a\nb\tc") << text.arg(QStringLiteral("a b c"));
}

void tst_PlayerContainer::namesTheProgramAsPlainText()
{
    QFETCH(QString, program);
    QFETCH(QString, shown);
    const Language texts(QStringLiteral("en"));
    m_camera->tell({Kind::Busy, program});
    QCOMPARE(m_player->accessibleDescription(), shown);
}

void tst_PlayerContainer::coversABlackPicture()
{
    m_camera->picture = QImage(PreviewSize, QImage::Format_RGB32);
    m_camera->picture.fill(Qt::black);
    m_camera->tell({Kind::Black, {}});
    const QImage seen = shot(*m_player);
    QCOMPARE(seen.pixel(0, 0), qRgb(0, 0, 0));
    // Light around the text
    int light = 0;
    for (int x = 0; x < seen.width(); ++x) {
        light += seen.pixel(x, seen.height() / 2) == Empty ? 1 : 0;
    }
    QVERIFY(light > seen.width() / 4);
}

void tst_PlayerContainer::turnsOnlyWhileStarting()
{
    m_camera->tell({Kind::Starting, {}});
    QVERIFY(timersOf(m_player.get()).isEmpty()); // it is hidden
    m_player->show();
    QCOMPARE(timersOf(m_player.get()).size(), 1);
    const QImage before = shot(*m_player);
    tick(m_player.get(), timersOf(m_player.get()).first().timerId);
    QVERIFY(shot(*m_player) != before);
    m_player->hide();
    QVERIFY(timersOf(m_player.get()).isEmpty());
    m_player->show();
    QCOMPARE(timersOf(m_player.get()).size(), 1);
    m_camera->tell({Kind::Hung, {}});
    QVERIFY(timersOf(m_player.get()).isEmpty());
}

QTEST_MAIN(tst_PlayerContainer)
#include "tst_PlayerContainer.moc"
