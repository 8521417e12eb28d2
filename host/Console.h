// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonDocument>
#include <QString>

// Standard output and standard error, as UTF-8.
namespace Console {

void print(const QString& text); // as it is, at once
void printError(const QString& line);
void printAside(const QString& text); // on standard error, as it is
bool isTerminal();                    // where print() goes to

// Foreign text on one line, without characters that control a terminal or change the text
// direction.
QString plainLine(const QString& text);
// The same for JSON: these characters are written as \u escapes.
QString plainJson(const QJsonDocument& document,
                  QJsonDocument::JsonFormat format = QJsonDocument::Indented);
// How many columns a text takes: most East Asian characters take two, combining ones none.
int columns(const QString& text);

} // namespace Console
