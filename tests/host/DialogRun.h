// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/tour/DialogView.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QJsonObject>
#include <QMap>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>
#include <functional>
#include <memory>

class QTableWidget;

// One run of the program on scripted devices, with the real dialog driven by clicks, and what
// dialog, terminal, report and exit code said. Has a home of its own.
class DialogRun
{
public:
    using Step = std::function<void(DialogRun&)>;
    using Steps = QVector<Step>;

    static constexpr const char* CheckKeys[] = {"network", "camera", "speaker", "microphone"};

    DialogRun();
    ~DialogRun();
    DialogRun(const DialogRun&) = delete;
    DialogRun& operator=(const DialogRun&) = delete;

    void run(const Steps& steps); // until the dialog has closed; fails the test where it can't

    // For the steps.
    Platform::ScriptedEngine& engine() const;
    DialogView& view() const { return *m_view; }
    void click(const char* name) const;
    void passNetwork();
    void passCamera();
    void playAndPick();
    void passSpeaker();
    void passMicrophone();
    void measure(int delayMs, int lossPercent);

    // Afterwards. The verdict that the dialog showed last, by check, is a word of the report, or
    // "red" where it said no more.
    QMap<QString, QString> shown() const { return m_shown; }
    int code() const { return m_code; }
    QStringList terminal() const { return m_terminal; } // from the table's first row
    QJsonObject report() const { return m_report; }
    QJsonObject check(const char* key) const; // of the report
    static QString figure(const QJsonObject& check, const char* list, const char* key);

private:
    void visit(const Steps& steps);
    void look();
    void lookAtTable(const QTableWidget& table);
    void lookAtLabels();

    QTemporaryDir m_home;
    std::unique_ptr<DialogView> m_view;
    QMap<QString, QString> m_shown;
    int m_code = -1;
    QStringList m_terminal;
    QJsonObject m_report;
};
