// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The terminal, or what stands in its place. Everything is UTF-8.
namespace Console {

void print(const QString& text); // as it is, at once
void printError(const QString& line);
bool isTerminal(); // where print() goes to

// Foreign text on one line, without what would steer a terminal or turn the line's direction.
QString plainLine(const QString& text);
// How many columns a text takes: East Asian letters take two.
int columns(const QString& text);
QString padded(const QString& text, int width);

} // namespace Console
