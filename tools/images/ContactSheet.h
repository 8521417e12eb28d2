// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

// Every picture of the library and of the host with its name, at scale 1 and 2, on white and on
// the grey of the pages. Null if a picture can't be read; `unreadable` then names it.
QImage contactSheet(const QString& root, QString* unreadable);
