// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/GStreamerView.h"
#include "benchmarks/HandlerMeter.h"
#include "benchmarks/OwnView.h"
#include "benchmarks/PlayerView.h"

#include <QApplication>
#include <QFile>
#include <QSocketNotifier>
#include <cstdio>
#include <memory>
#include <unistd.h>

// Shows a camera in one of several ways, in a process of its own, so that a benchmark can measure
// it from outside:
//     camera_viewer own|appsink|widget|fakesink|ximagesink|mediaplayer NODE [raw|jpeg] [silent]
// Takes "go", "stop" and "quit" on the standard input. Says "ready" once it may be told to go,
// "frame NUMBER NANOSECONDS" when one was painted, and after a stop "busy MILLISECONDS": how long
// the handler of one event kept the GUI thread at most.

namespace {

std::unique_ptr<View> makeView(const QString& kind, const QString& node, bool isJpeg)
{
    if (kind == QLatin1String("own")) {
        return std::make_unique<OwnView>(node);
    }
    if (kind == QLatin1String("mediaplayer")) {
        return std::make_unique<PlayerView>(node, isJpeg);
    }
    return GStreamerView::make(kind, node, isJpeg);
}

} // namespace

int main(int argc, char** argv)
{
    HandlerMeter<QApplication> application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(4) == QLatin1String("silent")) {
        View::setSilent();
    }
    const std::unique_ptr<View> view = makeView(arguments.value(1), arguments.value(2),
                                                arguments.value(3) == QLatin1String("jpeg"));
    if (!view) {
        std::fputs("camera_viewer: say own, appsink, widget, fakesink, ximagesink or mediaplayer,"
                   " and the name of a node\n",
                   stderr);
        return 2;
    }
    QByteArray input;
    const QSocketNotifier notifier(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &application, [&] {
        char bytes[256];
        const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0) {
            QApplication::quit();
            return;
        }
        input.append(bytes, static_cast<int>(count));
        for (int end = input.indexOf('\n'); end >= 0; end = input.indexOf('\n')) {
            const QByteArray line = input.left(end);
            input.remove(0, end + 1);
            if (line == "go") {
                application.restart();
                QMetaObject::invokeMethod(
                    &application, [&view] { view->go(); }, Qt::QueuedConnection);
            } else if (line == "stop") {
                std::printf("busy %.3f\n", application.longestMs());
                std::fflush(stdout);
                view->stop();
            } else {
                QApplication::quit();
            }
        }
    });
    return QApplication::exec();
}
