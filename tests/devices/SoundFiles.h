// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace TestSupport {

// The sounds of the speaker check, as files and as what is to be heard.
QStringList soundNames();
QString soundPath(const QString& name);
// In one channel, at the rate of the recordings.
std::vector<float> readSound(const QString& path);
// How alike a recording and each of the sounds are, in the order of their names.
std::vector<double> compareWithSounds(const std::vector<float>& recording);

} // namespace TestSupport
