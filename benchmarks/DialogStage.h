// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <functional>

class QDialog;
namespace TestSupport {
class SoundServer;
}

// The dialog on real devices, and what the benchmarks of it do there.
namespace DialogStage {

constexpr int SettleMs = 30;
constexpr int TimeoutMs = 10000;

// An application that knows when a dialog has been painted for the first time, with everything that
// its first paint event caused.
class Application final : public QApplication
{
public:
    using QApplication::QApplication;

    void onceDialogIsPainted(std::function<void()> callback) { m_callback = std::move(callback); }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    std::function<void()> m_callback;
    bool m_isPainted = false;
    int m_depth = 0;
};

QDialog* dialog(); // the open one, or null
void click(const char* name);
void settle(int ms);
// Ends the session as the engine does: the only end without a question.
void endSession();
// Calls the function from the event loop, once the current event is handled.
void callLater(const std::function<void()>& function);
// Runs the dialog; once it is painted runs the script, then ends the session.
void runDialog(Application& application, const std::function<void()>& script);

// Opens the three steps with devices, one after the other.
void visitDevicePages();
// Each opens a step and waits until its device works; false after TimeoutMs.
bool showCamera();
bool playSound(TestSupport::SoundServer& server);
bool record(TestSupport::SoundServer& server);

} // namespace DialogStage
