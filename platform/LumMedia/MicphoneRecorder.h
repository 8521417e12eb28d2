// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumMedia/LumMediaExport.h>
#include <QObject>

// The client's recorder. The check starts no recording; stopping without one is allowed.
class LUMMEDIA_EXPORT MicphoneRecorder : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(MicphoneRecorder)

public:
    explicit MicphoneRecorder(QObject* parent);
    ~MicphoneRecorder() override;

    int stopRecorder(); // 0; there is nothing to stop
};
