// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Platform {

// Temporary files and folders that stand beside a target while it is written: .envcheck-XXXXXX.
// Whoever makes one holds it locked. If the program is killed, the lock goes and the file stays.
namespace Leftovers {

// For mkostemp() and mkdtemp(), which make it new.
QByteArray nameIn(const QByteArray& folder);

// Locks the open file or folder until it is closed. False if another program has taken it for a
// leftover meanwhile; then make another one.
bool claim(int descriptor);

// Removes what killed programs of this user have left in the folder. Follows no link, waits for no
// other program, and looks at a bounded number of names.
void removeFrom(const QByteArray& folder);

} // namespace Leftovers
} // namespace Platform
