// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace TestSupport {

// The sounds of the speaker check.
QStringList soundNames();
QString soundPath(const QString& name);
// One channel, at SoundRate.
std::vector<float> readSound(const QString& path);
// Similarity of the recording and each of the sounds, in the order of soundNames().
std::vector<double> compareWithSounds(const std::vector<float>& recording);

} // namespace TestSupport
