// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDialog>

// The least that a program with a dialog does: the peer of bench_start.
//     bare_dialog WIDTH HEIGHT
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    QDialog dialog;
    dialog.resize(arguments.value(1).toInt(), arguments.value(2).toInt());
    return dialog.exec();
}
