// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/View.h"

#include <CommEngine/LumCamera.h>
#include <CommEngine/PlayerContainer.h>
#include <QTemporaryDir>
#include <memory>

// The preview of the camera page.
class OwnView final : public View
{
public:
    explicit OwnView(const QString& node);
    ~OwnView() override;

    void go() override;
    void stop() override;

private:
    class Preview;

    QTemporaryDir m_settings;
    std::unique_ptr<LumCamera> m_camera;
    std::unique_ptr<Preview> m_preview;
};
