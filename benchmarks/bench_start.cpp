// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/Statistics.h"
#include "benchmarks/VirtualDisplay.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSize>
#include <QStringList>
#include <QTemporaryDir>
#include <QThread>
#include <cstdio>
#include <memory>
#include <optional>
#include <xcb/xcb.h>

// From the start of the program to its painted dialog, as the display sees it. The peer is a
// program with an empty QDialog of the same size. Both take turns on the same display.

namespace {

constexpr int UsualRounds = 21;
constexpr int TimeoutMs = 10000;
constexpr int EndMs = 5000;
constexpr unsigned long LookPauseUs = 300;
constexpr double MaxRatio = 1.5;
constexpr int Margin = 12; // of the place that is looked at, from the window's corner

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply>
Owned<Reply> owned(Reply* reply)
{
    return {reply, &std::free};
}

// Looks at the display from outside. Its background is black, and no dialog is.
class Watcher
{
public:
    Watcher() : m_connection(xcb_connect(nullptr, nullptr)) {}
    ~Watcher() { xcb_disconnect(m_connection); }
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    // The size of the window that shows something but black, or nothing.
    std::optional<QSize> paintedWindow() const
    {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        const auto tree =
            owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, root), nullptr));
        for (int i = 0; tree && i < xcb_query_tree_children_length(tree.get()); ++i) {
            const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
            const auto geometry = owned(xcb_get_geometry_reply(
                m_connection, xcb_get_geometry(m_connection, window), nullptr));
            if (geometry && geometry->width > 100 && geometry->height > 100 && isPainted(window)) {
                return QSize(geometry->width, geometry->height);
            }
        }
        return {};
    }

private:
    bool isPainted(xcb_window_t window) const
    {
        const auto attributes = owned(xcb_get_window_attributes_reply(
            m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
        if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE) {
            return false;
        }
        const auto image =
            owned(xcb_get_image_reply(m_connection,
                                      xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window,
                                                    Margin, Margin, 1, 1, 0xffffff),
                                      nullptr));
        if (!image || xcb_get_image_data_length(image.get()) < 3) {
            return false;
        }
        const uint8_t* const bytes = xcb_get_image_data(image.get());
        return bytes[0] != 0 || bytes[1] != 0 || bytes[2] != 0;
    }

    xcb_connection_t* m_connection;
};

struct Start
{
    double ms = 0.0;
    QSize window;
};

std::optional<Start> startOnce(const Watcher& watcher, const QString& program,
                               const QStringList& arguments)
{
    TestSupport::TestProcess process;
    QElapsedTimer clock;
    clock.start();
    process.start(QCoreApplication::applicationDirPath() + QLatin1Char('/') + program, arguments);
    std::optional<QSize> window;
    while (!window && clock.elapsed() < TimeoutMs) {
        QThread::usleep(LookPauseUs);
        window = watcher.paintedWindow();
    }
    const double ms = static_cast<double>(clock.nsecsElapsed()) * 1e-6;
    process.terminate();
    process.waitForFinished(EndMs);
    process.kill();
    process.waitForFinished(EndMs);
    if (!window) {
        std::fprintf(stderr, "%s shows no window\n", qPrintable(program));
        return {};
    }
    return Start{ms, *window};
}

std::optional<bool> measure(const Watcher& watcher, int rounds)
{
    std::vector<double> own;
    std::vector<double> peer;
    for (int round = 0; round < rounds; ++round) {
        const auto check =
            startOnce(watcher, QStringLiteral("envcheck"), {QStringLiteral("--quiet")});
        if (!check) {
            return {};
        }
        const auto bare = startOnce(
            watcher, QStringLiteral("bare_dialog"),
            {QString::number(check->window.width()), QString::number(check->window.height())});
        if (!bare) {
            return {};
        }
        if (round > 0) { // the first one reads the disk
            own.push_back(check->ms);
            peer.push_back(bare->ms);
        }
    }
    const double ratio = Statistics(own).median() / Statistics(peer).median();
    std::printf(
        "| program start to painted dialog, ms (%zu starts) | median | p10 | p90 | ratio |\n"
        "|---|---|---|---|---|\n",
        own.size());
    const auto print = [](const char* name, const Statistics& times, double share) {
        std::printf("| %s | %.0f | %.0f | %.0f | %.2f |\n", name, times.median(), times.p10(),
                    times.p90(), share);
    };
    print("this program", Statistics(own), ratio);
    print("an empty QDialog", Statistics(peer), 1.0);
    std::puts("");
    return ratio <= MaxRatio;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const BenchmarkOptions options(application, UsualRounds);
    const QTemporaryDir home;
    for (const char* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(folder, home.path().toUtf8());
    }
    VirtualDisplay display;
    if (!display.start()) {
        return 2;
    }
    const Watcher watcher;
    return options.judge([&] { return measure(watcher, options.rounds()); });
}
