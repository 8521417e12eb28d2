// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/ScreenFit.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace {

const char* const FactorVariable = "QT_SCALE_FACTOR"; // on top of the screen's own factor
constexpr double Steps = 1000;

} // namespace

void ScreenFit::takeFactorsAsTheyAre()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

bool ScreenFit::hasLoweredFactor()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) {
        return false;
    }
    const QSizeF room = screen->availableGeometry().size();
    const double share =
        std::min(room.width() / WindowSize.width(), room.height() / WindowSize.height());
    if (share >= 1 || share <= 0) {
        return false;
    }
    bool isNumber = false;
    const double given = qEnvironmentVariable(FactorVariable).toDouble(&isNumber);
    const double factor = std::floor((isNumber ? given : 1.0) * share * Steps) / Steps;
    qputenv(FactorVariable, QByteArray::number(factor));
    return true;
}
