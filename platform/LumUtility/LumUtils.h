// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumUtility/LumUtilityExport.h>
#include <QMessageBox>
#include <QString>

namespace LumUtils {

// The translated title of a message box with the given icon.
LUMUTILITY_EXPORT QString getMessageBoxTitle(QMessageBox::Icon icon);

} // namespace LumUtils
