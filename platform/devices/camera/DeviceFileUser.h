// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Platform {

// Finds who has a device file open. It looks at every process that this user may look at, so it
// takes some milliseconds: not for the GUI thread.
namespace DeviceFileUser {

// The name of a program that has the file open, other than this one and those with these names.
// Foreign text; empty if there is none, or it belongs to another user.
QString nameOf(const QString& path, const QStringList& exceptions = {});

} // namespace DeviceFileUser
} // namespace Platform
