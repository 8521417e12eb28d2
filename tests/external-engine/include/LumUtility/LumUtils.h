// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

namespace LumUtils {

QString getMessageBoxTitle(QMessageBox::Icon icon);

} // namespace LumUtils
