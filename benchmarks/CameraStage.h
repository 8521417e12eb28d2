// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/VirtualDisplay.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/PipeWireServer.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

class BenchmarkOptions;

// The time of each frame by its number, from the output of a camera or a viewer.
std::map<int, qint64> framesIn(const QByteArray& output);

// A running camera_viewer.
class Viewer final : public TestSupport::TestProcess
{
    Q_OBJECT
    Q_DISABLE_COPY(Viewer)

public:
    Viewer(const QString& kind, const QString& node, const QStringList& more = {});
    ~Viewer() override;

    bool waitUntilReady();
    qint64 go(); // the time of the click
    bool waitForFrame();
    double stop(); // how long one handler kept the GUI thread at most
    QByteArray takeOutput();

private:
    bool waitFor(const QByteArray& text);

    QByteArray m_output;
};

// A server, a display, and a camera that sends 30 numbered frames a second.
class CameraStage
{
public:
    static constexpr int Rate = 30;

    CameraStage();
    ~CameraStage();
    CameraStage(const CameraStage&) = delete;
    CameraStage& operator=(const CameraStage&) = delete;

    bool start(); // prints why not
    TestSupport::CameraProcess& camera() { return *m_camera; }
    QString node() const;
    // Another camera in its place: by default YUY2 of 1280 x 720.
    bool plug(const QString& pixelFormat, const QSize& size);

private:
    TestSupport::PipeWireServer m_server;
    VirtualDisplay m_display;
    std::unique_ptr<TestSupport::CameraProcess> m_camera;
};

// The main function of a camera benchmark. measure returns whether the bounds were kept, or nothing
// if it couldn't measure.
int runCameraBenchmark(
    int argc, char** argv, int usualRounds,
    const std::function<std::optional<bool>(CameraStage&, const BenchmarkOptions&)>& measure);
