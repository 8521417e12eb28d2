// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class MicphoneRecorder : public QObject
{
    Q_OBJECT

public:
    explicit MicphoneRecorder(QObject* parent) : QObject(parent) {}
    int stopRecorder() { return 0; }
};
