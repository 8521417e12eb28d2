// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/LumCameraBase.h>
#include <CommEngine/PlayerContainer.h>

#include <QtTest>

namespace {

const QSize PreviewSize(306, 172);
const QRgb Empty = qRgb(242, 242, 242);

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
    void setPreviewPixelRatio(qreal ratio) override { previewRatio = ratio; }

    QImage picture;
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

QTEST_MAIN(tst_PlayerContainer)
#include "tst_PlayerContainer.moc"
