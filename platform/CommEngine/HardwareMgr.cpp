// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/HardwareMgr.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"

HardwareMgr::HardwareMgr(const QString& name, QObject* parent) : QObject(parent), m_name(name)
{
}

HardwareMgr::~HardwareMgr() = default;

void HardwareMgr::postHardwardInfoToServer(int code)
{
    Platform::EngineRegistry::engine().reportSink().postCode(m_name, code);
}
