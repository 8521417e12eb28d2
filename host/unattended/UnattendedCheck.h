// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"
#include "host/unattended/Trial.h"

#include <QElapsedTimer>
#include <memory>
#include <vector>

struct DeviceSurvey;

namespace Platform {
class Engine;
}

// Measures the network and every device side by side, without a window and without a person. GUI
// thread only.
class UnattendedCheck
{
public:
    // For all trials together. What isn't over by then counts as not measured.
    static constexpr int LongestMs = 20000;

    enum class Noise { None, Sweep }; // a sweep on the chosen speaker

    UnattendedCheck(Platform::Engine& engine, Trial::Figures figures, Noise noise);
    ~UnattendedCheck();
    UnattendedCheck(const UnattendedCheck&) = delete;
    UnattendedCheck& operator=(const UnattendedCheck&) = delete;

    // Runs the event loop until everything is measured, or the program is asked to end. All devices
    // are closed then.
    void run();

    bool wasBrokenOff() const { return m_wasBrokenOff; }
    bool isServiceMissing() const;
    RunEnd outcome() const;
    QJsonObject networkFigures() const { return m_networkFigures; }
    // One for each device, one for a kind that has none, and one for the sweep; in the order of the
    // kinds.
    const std::vector<ReportCheck>& checks() const { return m_checks; }

private:
    struct Entry
    {
        std::unique_ptr<Trial> trial;
        bool isStarted = false;
        bool isFinished = false;
        ReportCheck check;
    };

    void addDevices(const DeviceSurvey& survey);
    void addLoop(const DeviceSurvey& survey);
    void addAbsence(CheckKind kind, Cause cause);
    void startNext();
    void finishOver();
    void finish(Entry& entry, bool hasEnded);
    bool mayStart(const Entry& entry) const;
    bool isAllFinished() const;

    Platform::Engine& m_engine;
    Trial::Figures m_figures;
    Noise m_noise;
    std::vector<Entry> m_entries;
    std::vector<ReportCheck> m_checks;
    QJsonObject m_networkFigures;
    QElapsedTimer m_clock;
    bool m_wasBrokenOff = false;
};
