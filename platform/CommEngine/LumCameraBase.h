// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/CommEngineExport.h>
#include <QImage>
#include <QObject>
#include <QString>

namespace Platform {
struct CameraCause;
}

// A source of frames that a PlayerContainer shows. GUI thread only.
class COMMENGINE_EXPORT LumCameraBase : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(LumCameraBase)

public:
    explicit LumCameraBase(QObject* parent = nullptr);
    ~LumCameraBase() override;

    virtual QImage latestFrame() const = 0;          // null before the first
    virtual Platform::CameraCause cause() const = 0; // why there is no picture

    // Device pixel ratio of the preview, so that frames are sharp. At least 1.
    virtual void setPreviewPixelRatio(qreal ratio) = 0;

Q_SIGNALS:
    void currentDeivceChanged(const QString& id);
    void frameArrived();
    void causeChanged();
};
