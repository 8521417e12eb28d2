// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/PlayerContainer.h>

#include <CommEngine/LumCameraBase.h>
#include <CommEngine/PreviewNotice.h>

#include "platform/backend/CameraCause.h"

#include <QPainter>
#include <QTimerEvent>

namespace {

constexpr int RoundingPixels = 1; // two ways to fit a size may differ by this
constexpr int SpinnerStepMs = 80;

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
        connect(m_camera, &LumCameraBase::causeChanged, this, &PlayerContainer::refreshNotice);
        connect(m_camera, &QObject::destroyed, this, &PlayerContainer::refreshNotice);
    }
    refreshNotice();
}

void PlayerContainer::play()
{
    m_isPlaying = true;
    if (m_camera) {
        m_camera->setPreviewPixelRatio(devicePixelRatioF());
    }
    refreshNotice();
}

void PlayerContainer::stop()
{
    m_isPlaying = false;
    refreshNotice();
}

void PlayerContainer::onFrameArrived()
{
    if (m_isPlaying) {
        update();
    }
}

void PlayerContainer::refreshNotice()
{
    const Platform::CameraCause cause = m_camera ? m_camera->cause() : Platform::CameraCause();
    m_isStarting = cause.kind == Platform::CameraCause::Kind::Starting;
    m_notice = PreviewNotice::textOf(cause, noticeFont(), contentsRect().width());
    setAccessibleDescription(m_notice);
    runSpinner();
    update();
}

void PlayerContainer::runSpinner()
{
    const bool mustRun = m_isStarting && isVisible();
    if (mustRun && !m_spinner.isActive()) {
        m_spinner.start(SpinnerStepMs, this);
    } else if (!mustRun) {
        m_spinner.stop();
    }
}

QFont PlayerContainer::noticeFont() const
{
    QFont result = font();
    result.setPixelSize(PreviewNotice::FontPixels);
    return result;
}

void PlayerContainer::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_spinner.timerId()) {
        m_spinnerStep = (m_spinnerStep + 1) % PreviewNotice::SpinnerSteps;
        update();
    } else {
        QFrame::timerEvent(event);
    }
}

void PlayerContainer::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    refreshNotice();
}

void PlayerContainer::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    m_spinner.stop();
}

void PlayerContainer::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    const bool hasPicture = paintPicture();
    if (m_notice.isEmpty()) {
        return;
    }
    QPainter painter(this);
    painter.setFont(noticeFont());
    if (m_isStarting) {
        PreviewNotice::paintStarting(painter, contentsRect(), m_notice, m_spinnerStep);
    } else {
        PreviewNotice::paintText(painter, contentsRect(), m_notice, hasPicture);
    }
}

// False if there is none.
bool PlayerContainer::paintPicture()
{
    if (!m_isPlaying || !m_camera) {
        return false;
    }
    m_camera->setPreviewPixelRatio(devicePixelRatioF()); // the window may be on another screen now
    const QImage picture = m_camera->latestFrame();
    if (picture.isNull()) {
        return false;
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
    return true;
}
