// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/VirtualCamera.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>
#include <cstdio>

using namespace TestSupport;

namespace {

std::vector<VirtualCamera::Options::Mode> modesOf(const QString& text)
{
    std::vector<VirtualCamera::Options::Mode> result;
    const QRegularExpression form(QStringLiteral("(\\w+):(\\d+)x(\\d+)@(\\d+)"));
    for (auto match = form.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch mode = match.next();
        CameraPattern::PixelFormat format = CameraPattern::Yuy2;
        CameraPattern::pixelFormatFromName(mode.captured(1), format);
        result.push_back({format, QSize(mode.captured(2).toInt(), mode.captured(3).toInt()),
                          mode.captured(4).toInt()});
    }
    return result;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const auto option = [&parser](const char* name, const char* value, const char* fallback) {
        parser.addOption({QLatin1String(name), QLatin1String(name), QLatin1String(value),
                          QLatin1String(fallback)});
    };
    option("name", "name", "virtual_camera");
    option("description", "text", "Virtual Camera");
    option("role", "role", "Camera");
    option("bus-path", "path", "");
    option("capabilities", "list", ":capture:");
    option("width", "pixels", "640");
    option("height", "pixels", "480");
    option("padding", "bytes", "0");
    option("rate", "number", "30");
    option("transform", "number", "0");
    option("pixel-format", "name", "YUY2");
    option("color", "RRGGBB", "c82828");
    option("modes", "FORMAT:WIDTHxHEIGHT@RATE,...", "");
    for (const char* name : {"stalled", "driver-memory", "refusing", "unreadable", "for-graphics",
                             "broken", "numbered", "log-frames"}) {
        parser.addOption({QLatin1String(name), QLatin1String(name)});
    }
    parser.process(application);
    const auto text = [&parser](const char* name) { return parser.value(QLatin1String(name)); };
    const auto number = [&text](const char* name) { return text(name).toInt(); };
    const auto isSet = [&parser](const char* name) { return parser.isSet(QLatin1String(name)); };

    CameraPattern::PixelFormat format = CameraPattern::Yuy2;
    if (!CameraPattern::pixelFormatFromName(text("pixel-format"), format)) {
        std::fprintf(stderr, "virtual_camera: no such pixel format: %s\n",
                     qPrintable(text("pixel-format")));
        return 2;
    }
    CameraPattern pattern(format, QSize(number("width"), number("height")), number("padding"));
    pattern.setColor(QColor(QLatin1Char('#') + text("color")));
    pattern.setNumbered(isSet("numbered"));

    VirtualCamera::Options options;
    options.name = text("name");
    options.description = text("description");
    options.role = text("role");
    options.rate = number("rate");
    options.modes = modesOf(text("modes"));
    options.isRefusing = isSet("refusing");
    options.transform = static_cast<uint32_t>(number("transform"));
    options.isStalled = isSet("stalled");
    options.busPath = text("bus-path");
    options.capabilities = text("capabilities");
    options.isUnreadable = isSet("unreadable");
    options.isForGraphics = isSet("for-graphics");
    options.isBroken = isSet("broken");
    options.isDriverMemory = isSet("driver-memory");
    options.isLogged = isSet("log-frames");
    return VirtualCamera(options, pattern).run();
}
