// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QObject>

namespace Platform {

// A speaker in use, for as long as this lives. A sound belongs to the newest speaker there is when
// it starts, and ends with it. GUI thread only.
class CLASSROOMBACKEND_EXPORT SpeakerSession : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(SpeakerSession)

public:
    SpeakerSession();
    ~SpeakerSession() override;

    static const SpeakerSession* newest(); // null where no speaker is in use

Q_SIGNALS:
    void ended();
};

} // namespace Platform
