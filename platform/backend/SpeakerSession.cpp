// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/SpeakerSession.h"

#include <algorithm>
#include <vector>

namespace Platform {

namespace {

std::vector<const SpeakerSession*> s_sessions; // the newest one last

} // namespace

SpeakerSession::SpeakerSession()
{
    s_sessions.push_back(this);
}

SpeakerSession::~SpeakerSession()
{
    s_sessions.erase(std::find(s_sessions.begin(), s_sessions.end(), this));
    Q_EMIT ended();
}

const SpeakerSession* SpeakerSession::newest()
{
    return s_sessions.empty() ? nullptr : s_sessions.back();
}

} // namespace Platform
