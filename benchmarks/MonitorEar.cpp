// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/MonitorEar.h"

#include <array>
#include <cmath>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int Rate = 48000;
constexpr std::size_t QuietSamples = Rate / 5;

} // namespace

MonitorEar::MonitorEar(const QString& device)
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        return;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    QByteArray program("parec");
    QByteArray target = "--device=" + device.toUtf8();
    std::array<QByteArray, 5> options{"--raw", "--format=float32le", "--rate=48000", "--channels=1",
                                      "--latency-msec=5"};
    std::array<char*, 8> arguments{
        program.data(),    target.data(),     options[0].data(), options[1].data(),
        options[2].data(), options[3].data(), options[4].data(), nullptr};
    ::posix_spawnp(&m_process, program.constData(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    m_pipe = ends[0];
    m_thread = std::thread([this] { listen(); });
}

MonitorEar::~MonitorEar()
{
    if (m_process > 0) {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
    ::close(m_pipe);
}

void MonitorEar::arm()
{
    const std::scoped_lock lock(m_mutex);
    m_isWaitingForQuiet = true;
    m_quietSamples = 0;
    m_onset.reset();
}

bool MonitorEar::isArmed() const
{
    const std::scoped_lock lock(m_mutex);
    return !m_isWaitingForQuiet;
}

std::optional<MonitorEar::Clock::time_point> MonitorEar::onset() const
{
    const std::scoped_lock lock(m_mutex);
    return m_onset;
}

void MonitorEar::listen()
{
    std::array<float, Rate / 100> samples{};
    ssize_t size = 0;
    while ((size = ::read(m_pipe, samples.data(), sizeof samples)) > 0) {
        const Clock::time_point now = Clock::now();
        const std::size_t count = static_cast<std::size_t>(size) / sizeof(float);
        const std::scoped_lock lock(m_mutex);
        for (std::size_t i = 0; i < count; ++i) {
            const bool isLoud = std::abs(samples[i]) > Threshold;
            m_quietSamples = isLoud ? 0 : m_quietSamples + 1;
            if (m_isWaitingForQuiet) {
                m_isWaitingForQuiet = m_quietSamples < QuietSamples;
            } else if (isLoud && !m_onset) {
                m_onset = now;
            }
        }
    }
}
