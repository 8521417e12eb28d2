// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

namespace TestSupport {

// The devices of an engine of another make, on whatever page. A program that this is linked into
// has that engine's camera, speaker, microphone and combo box in the place of the bundled ones.
struct ForeignDevices
{
    static ForeignDevices& instance();

    std::vector<std::pair<QString, QString>> list; // ids and names
    QString current;
    QStringList chosen;             // by the page
    std::function<void()> tellNews; // that the list, the choice and the state changed
    int callsUntilNews = 0;         // tells them inside of the last of these; 0: of none
    bool isTellingLastNews = false; // from the destructor
    int lastNewsTold = 0;
};

} // namespace TestSupport
