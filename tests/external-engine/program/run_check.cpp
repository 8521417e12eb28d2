// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
// Walks through the whole check on this engine and compares what the library told it.
#include "Journal.h"

#include "agent/EnvCheckAgent.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTextStream>
#include <QTimer>
#include <cstdlib>

namespace {

template <typename Widget>
Widget* visible(const char* name)
{
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        auto* found = qobject_cast<Widget*>(widget);
        if (found && found->objectName() == QLatin1String(name) && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

// Clicks the button as soon as it stands there enabled; the network step first wants its figures.
bool clickWhenReady(const char* name)
{
    auto* delay = visible<QLabel>("label_ND");
    if (delay && delay->text() == QLatin1String("- -")) {
        return false;
    }
    auto* button = visible<QAbstractButton>(name);
    if (!button || !button->isEnabled()) {
        return false;
    }
    button->click();
    return true;
}

// The network step repeats its two figures for as long as it is shown.
QStringList withoutFigures(const QStringList& lines)
{
    QStringList result;
    for (const QString& line : lines) {
        if (line != QLatin1String("delay 20ms") && line != QLatin1String("loss 0%")) {
            result << line;
        }
    }
    return result;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QList<const char*> buttons = {"Btn_Next", "Btn_Cant", "Btn_CanHear", "Btn_Mic_Yes",
                                        "redetectButton"};
    int next = 0;
    QTimer driver;
    QObject::connect(&driver, &QTimer::timeout, &driver, [&] {
        if (next < buttons.size()) {
            next += clickWhenReady(buttons.at(next)) ? 1 : 0;
        } else if (QWidget* dialog = QApplication::activeModalWidget()) {
            if (auto* page = dialog->findChild<QWidget*>("selfcheckContentPage")) {
                page->close();
            }
        }
    });
    driver.start(5);
    QTimer::singleShot(20000, &application, [] {
        QTextStream(stderr) << "The check did not end:\n" << journal().join('\n') << '\n';
        std::_Exit(1);
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    EnvCheckAgent::release();

    const QStringList camera = {"camera answer 2", "camera state 2", "camera name none"};
    const QStringList expected = QStringList{"dialog 0 alone 0 plain 0",
                                             "manager CheckPage",
                                             "manager CheckPage",
                                             "manager CheckPage",
                                             "manager CheckPage",
                                             "manager CheckPage",
                                             "centre selfcheckContentPage 0",
                                             "title ID_Kestrel_SystemTesting",
                                             "dialog runs"} +
                                 camera + camera +
                                 QStringList{"headphone answer 1",
                                             "headphone state 2",
                                             "headphone name Minimal speaker",
                                             "microphone answer 1",
                                             "microphone state 1",
                                             "microphone name Minimal microphone",
                                             "manager ContentPage::closeEvent",
                                             "settings default",
                                             "setting ShowSystemCheck false",
                                             "post 3"};
    const bool isGood = withoutFigures(journal()) == expected && journal().contains("delay 20ms") &&
                        journal().contains("loss 0%");
    if (!isGood) {
        QTextStream(stderr) << "The engine was told:\n" << journal().join('\n') << '\n';
    }
    QTextStream(stdout) << (isGood ? "The check ran on the other engine.\n" : "Failed.\n");
    return isGood ? 0 : 1;
}
