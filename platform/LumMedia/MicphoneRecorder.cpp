// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumMedia/MicphoneRecorder.h>

MicphoneRecorder::MicphoneRecorder(QObject* parent) : QObject(parent)
{
}

MicphoneRecorder::~MicphoneRecorder() = default;

int MicphoneRecorder::stopRecorder()
{
    return 0;
}
