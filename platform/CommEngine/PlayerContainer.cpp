// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/PlayerContainer.h>

#include <CommEngine/LumCameraBase.h>

#include <QPainter>

namespace {

constexpr int RoundingPixels = 1; // two ways to fit a size may differ by this

} // namespace

PlayerContainer::PlayerContainer(QWidget* parent, bool /*isLocal*/, enumPlayerType /*type*/)
    : QFrame(parent)
{
}

PlayerContainer::~PlayerContainer() = default;

void PlayerContainer::attachCamera(LumCameraBase* camera)
{
    if (m_camera) {
        m_camera->disconnect(this);
    }
    m_camera = camera;
    if (m_camera) {
        connect(m_camera, &LumCameraBase::frameArrived, this, &PlayerContainer::onFrameArrived);
    }
    update();
}

void PlayerContainer::play()
{
    m_isPlaying = true;
    if (m_camera) {
        m_camera->setPreviewPixelRatio(devicePixelRatioF());
    }
    update();
}

void PlayerContainer::stop()
{
    m_isPlaying = false;
    update();
}

void PlayerContainer::onFrameArrived()
{
    if (m_isPlaying) {
        update();
    }
}

void PlayerContainer::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (!m_isPlaying || !m_camera) {
        return;
    }
    m_camera->setPreviewPixelRatio(devicePixelRatioF()); // the window may be on another screen now
    const QImage picture = m_camera->latestFrame();
    if (picture.isNull()) {
        return;
    }
    // Paint in device pixels: a frame of the right size is then neither scaled nor smoothed.
    QPainter painter(this);
    const qreal ratio = painter.deviceTransform().m11();
    painter.scale(1.0 / ratio, 1.0 / ratio);
    const QRectF area(QPointF(contentsRect().topLeft()) * ratio,
                      QSizeF(contentsRect().size()) * ratio);
    const QSize fitted = picture.size().scaled(area.size().toSize(), Qt::KeepAspectRatio);
    const QSize difference = fitted - picture.size();
    const bool isMadeToFit =
        qAbs(difference.width()) <= RoundingPixels && qAbs(difference.height()) <= RoundingPixels;
    const QSize size = isMadeToFit ? picture.size() : fitted;
    const QPoint corner((area.center() - QRectF(QPointF(), size).center()).toPoint());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !isMadeToFit);
    painter.drawImage(QRect(corner, size), picture);
}
