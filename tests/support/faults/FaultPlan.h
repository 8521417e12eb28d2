// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

// What the environment asks for. Free of Qt, and safe before main().
namespace FaultPlan {

int valueOf(const char* variable); // 0 without it
void pause(const char* variable);  // for so many milliseconds
bool asksFor(const char* variable);

// Without FAULT_UNDER, which names a folder, every path is under it.
bool isUnder(const char* path);
bool isUnder(int file); // by the path of an open file

} // namespace FaultPlan

// Calls of one kind, counted. The variable says which of them fail: "K" the K-th, "K+" the later
// ones, too, "K*" every K-th.
class CallFault
{
public:
    explicit CallFault(const char* variable) : m_variable(variable) {}

    bool strikes();

private:
    const char* m_variable;
    std::atomic<int> m_count{0};
};
