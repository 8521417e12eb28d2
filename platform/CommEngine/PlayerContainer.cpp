// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/PlayerContainer.h>

#include <CommEngine/LumCameraBase.h>

#include <QPainter>

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
        connect(m_camera, &LumCameraBase::pictureArrived, this, &PlayerContainer::onPictureArrived);
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

void PlayerContainer::onPictureArrived()
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
    const QImage picture = m_camera->latestPicture();
    if (picture.isNull()) {
        return;
    }
    QSizeF size = picture.size();
    size.scale(QSizeF(contentsRect().size()), Qt::KeepAspectRatio);
    QRectF target(QPointF(), size);
    target.moveCenter(QRectF(contentsRect()).center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, picture);
}
