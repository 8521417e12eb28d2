// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumUtility/LumUtils.h>

QString LumUtils::getMessageBoxTitle(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Question:
        return qtTrId("ID_MessageBox_Question");
    case QMessageBox::Warning:
        return qtTrId("ID_MessageBox_Warning");
    case QMessageBox::Critical:
        return qtTrId("ID_MessageBox_Critical");
    case QMessageBox::Information:
    case QMessageBox::NoIcon:
        break;
    }
    return qtTrId("ID_MessageBox_Information");
}
