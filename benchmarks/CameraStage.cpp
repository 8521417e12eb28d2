// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/CameraStage.h"

#include "benchmarks/BenchmarkOptions.h"

#include <QCoreApplication>
#include <QTest>
#include <cstdio>
#include <ctime>

namespace {

constexpr int TimeoutMs = 10000;
const char FramePrefix[] = "frame ";
const char BusyPrefix[] = "busy ";

} // namespace

std::map<int, qint64> framesIn(const QByteArray& output)
{
    std::map<int, qint64> result;
    const QList<QByteArray> lines = output.split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> words = line.split(' ');
        if (line.startsWith(FramePrefix) && words.size() == 3) {
            result.emplace(words[1].toInt(), words[2].toLongLong()); // the first time counts
        }
    }
    return result;
}

Viewer::Viewer(const QString& kind, const QString& node, const QStringList& more)
{
    start(QCoreApplication::applicationDirPath() + QStringLiteral("/camera_viewer"),
          QStringList{kind, node} + more);
    waitForStarted();
}

Viewer::~Viewer() = default;

bool Viewer::waitUntilReady()
{
    return waitFor("ready\n");
}

qint64 Viewer::go()
{
    takeOutput();
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    write("go\n");
    waitForBytesWritten();
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

bool Viewer::waitForFrame()
{
    return waitFor(FramePrefix);
}

double Viewer::stop()
{
    write("stop\n");
    waitForBytesWritten();
    if (!waitFor(BusyPrefix)) {
        return qQNaN();
    }
    const int at = m_output.lastIndexOf(BusyPrefix);
    const int end = m_output.indexOf('\n', at);
    return m_output.mid(at, end - at).split(' ').value(1).toDouble();
}

QByteArray Viewer::takeOutput()
{
    m_output += readAll();
    return std::exchange(m_output, {});
}

bool Viewer::waitFor(const QByteArray& text)
{
    const bool isThere = QTest::qWaitFor(
        [this, &text] {
            m_output += readAll();
            const int at = m_output.lastIndexOf(text);
            return at >= 0 && m_output.indexOf('\n', at) >= 0;
        },
        TimeoutMs);
    if (!isThere) {
        std::fprintf(stderr, "The viewer doesn't say '%s': %s\n", text.constData(),
                     m_output.constData());
    }
    return isThere;
}

CameraStage::CameraStage() = default;

CameraStage::~CameraStage() = default;

bool CameraStage::start()
{
    if (!m_server.start()) {
        std::fprintf(stderr, "%s\n", qPrintable(m_server.problem()));
        return false;
    }
    if (!m_display.start()) {
        return false;
    }
    return plug(QStringLiteral("YUY2"), QSize(1280, 720));
}

bool CameraStage::plug(const QString& pixelFormat, const QSize& size)
{
    m_camera.reset();
    m_camera = std::make_unique<TestSupport::CameraProcess>(
        node(), QStringLiteral("Camera"),
        QStringList{QStringLiteral("--pixel-format"), pixelFormat, QStringLiteral("--width"),
                    QString::number(size.width()), QStringLiteral("--height"),
                    QString::number(size.height()), QStringLiteral("--rate"), QString::number(Rate),
                    QStringLiteral("--numbered"), QStringLiteral("--log-frames")});
    const bool isReady =
        QTest::qWaitFor([this] { return m_camera->output().contains("paused"); }, TimeoutMs);
    if (!isReady) {
        std::fputs("No virtual camera came up\n", stderr);
    }
    return isReady;
}

QString CameraStage::node() const
{
    return QStringLiteral("bench_camera");
}

int runCameraBenchmark(
    int argc, char** argv, int usualRounds,
    const std::function<std::optional<bool>(CameraStage&, const BenchmarkOptions&)>& measure)
{
    constexpr int NotMeasured = 2;
    QCoreApplication application(argc, argv);
    const BenchmarkOptions options(application, usualRounds);
    CameraStage stage;
    return stage.start() ? options.judge([&] { return measure(stage, options); }) : NotMeasured;
}
