// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/TourScript.h"

#include "host/SoundNames.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCursor>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <algorithm>

using Platform::DeviceState;
using Platform::NetworkFigures;
using Platform::ScriptedCameras;
using Platform::ScriptedEngine;

namespace {

using Act = std::function<void(const DialogView&)>;
using Ready = std::function<bool(const DialogView&)>;
using Anchor = std::function<const QWidget*(const DialogView&)>;
using Stops = std::vector<TourStop>;

constexpr int LitPercent = 30;
constexpr int PointerMs = 150; // until the pointer has moved

void nothing(const DialogView&)
{
}

bool always(const DialogView&)
{
    return true;
}

Act clicking(const char* button)
{
    return [button](const DialogView& view) { view.click(button); };
}

Ready enabled(const char* button)
{
    return [button](const DialogView& view) { return view.isEnabled(button); };
}

Ready shown(const char* widget)
{
    return [widget](const DialogView& view) { return view.find<QWidget>(widget) != nullptr; };
}

Anchor at(const char* widget)
{
    return [widget](const DialogView& view) { return view.find<QWidget>(widget); };
}

// Windows above the dialog are balloons, popups and questions.
Ready windowsAbove(int count)
{
    return [count](const DialogView& view) { return view.windows().size() == count + 1; };
}

// The tips button has no object name, so find it by its text.
QPushButton* tipsButton(const DialogView& view, const QString& text)
{
    const QList<QPushButton*> buttons = view.dialog()->findChildren<QPushButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [&text](const auto* button) {
        return button->isVisible() && button->text() == QLatin1Char(' ') + text;
    });
    return found == buttons.end() ? nullptr : *found;
}

void pressTips(const DialogView& view, const QString& text)
{
    if (QPushButton* button = tipsButton(view, text)) {
        // Move the pointer first, as a user does: the balloon closes when the pointer leaves it.
        QCursor::setPos(button->mapToGlobal(button->rect().center()));
        QTimer::singleShot(PointerMs, button, &QAbstractButton::click);
    }
}

Stops tips(const char* name, const QString& text)
{
    const Act press = [text](const DialogView& view) { pressTips(view, text); };
    const Anchor button = [text](const DialogView& view) { return tipsButton(view, text); };
    return {{QLatin1String(name), press, windowsAbove(1), button}, {{}, press, windowsAbove(0)}};
}

Stops deviceList(const char* name, const char* combo)
{
    return {{QLatin1String(name),
             [combo](const DialogView& view) {
                 if (auto* box = view.find<QComboBox>(combo)) {
                     box->showPopup();
                 }
             },
             windowsAbove(1), at(combo)},
            {{},
             [combo](const DialogView& view) {
                 if (auto* box = view.find<QComboBox>(combo)) {
                     box->hidePopup();
                 }
             },
             windowsAbove(0)}};
}

bool isMeasured(const DialogView& view)
{
    const auto* delay = view.find<QLabel>("label_ND");
    return delay && delay->text() != QLatin1String("- -");
}

// Answers yes if the page offers it, else no.
Act answering(const char* yes, const char* no)
{
    return [yes, no](const DialogView& view) { view.click(view.isEnabled(yes) ? yes : no); };
}

Ready eitherEnabled(const char* yes, const char* no)
{
    return [yes, no](const DialogView& view) { return view.isEnabled(yes) || view.isEnabled(no); };
}

// Picks the sound that the scripted engine played last.
void pickPlayedSound(const DialogView& view, ScriptedEngine& engine)
{
    const QStringList played = engine.scriptedSpeakers().playedFiles();
    if (played.isEmpty()) {
        return;
    }
    const QString name = qtTrId(SoundNames::textId(QFileInfo(played.last()).completeBaseName()));
    for (const char* item : {"item0", "item1", "item2", "item3"}) {
        const auto* button = view.find<QAbstractButton>(item);
        if (button && button->text() == name) {
            view.click(item);
        }
    }
}

void pickFirstSound(const DialogView& view)
{
    view.click("item0");
}

void operator+=(Stops& stops, const Stops& more)
{
    stops.insert(stops.end(), more.begin(), more.end());
}

void operator+=(Stops& stops, const TourStop& stop)
{
    stops.push_back(stop);
}

Act setting(NetworkFigures figures, ScriptedEngine& engine)
{
    return [figures, &engine](const DialogView&) { engine.network().setFigures(figures); };
}

Ready showsDelay(const QString& text)
{
    return [text](const DialogView& view) {
        const auto* delay = view.find<QLabel>("label_ND");
        return delay && delay->text() == text;
    };
}

Stops networkStates(ScriptedEngine& engine)
{
    const NetworkFigures good{1, 38, 2, 50, 49};
    const NetworkFigures bad{84, 912, 120, 50, 8};
    const NetworkFigures unmeasured{100, -1, 0, 50, 0};
    Stops stops;
    stops += tips("network-tips", qtTrId("ID_NetworkPage_ClickHere"));
    stops += {"network-bad", setting(bad, engine), showsDelay("912ms")};
    stops += {"network-unmeasured", setting(unmeasured, engine), showsDelay("N/A")};
    stops += {{}, setting(good, engine), showsDelay("38ms")};
    stops += {"question",
              [](const DialogView& view) {
                  QMetaObject::invokeMethod(view.dialog(), &QWidget::close, Qt::QueuedConnection);
              },
              windowsAbove(1)};
    stops += {{},
              [](const DialogView& view) {
                  for (QWidget* window : view.windows()) {
                      if (auto* box = qobject_cast<QMessageBox*>(window)) {
                          box->button(QMessageBox::No)->click();
                      }
                  }
              },
              windowsAbove(0)};
    return stops;
}

bool hasNoCountdown(const DialogView& view)
{
    const auto* button = view.find<QAbstractButton>("Btn_CanSee");
    return button && button->isEnabled() && !button->text().contains(QLatin1Char('('));
}

Stops cameraStates(ScriptedEngine& engine)
{
    ScriptedCameras& cameras = engine.cameras();
    const QString id = cameras.currentId();
    const QString name = cameras.currentName();
    Stops stops;
    stops += tips("camera-tips", qtTrId("ID_CameraPage_ClickHere"));
    stops += deviceList("camera-list", "cb_vd_name");
    stops += {"camera-no-picture",
              [&cameras, id](const DialogView&) {
                  cameras.setPictures(id, ScriptedCameras::Pictures::None);
              },
              [](const DialogView& view) {
                  const auto* button = view.find<QAbstractButton>("Btn_CanSee");
                  return button && button->text().contains(QLatin1String("(2)"));
              }};
    stops +=
        {"camera-in-use",
         [&cameras, id](const DialogView&) {
             ScriptedCameras::Feed feed = cameras.feed(id);
             feed.program = QStringLiteral("Video meeting");
             cameras.setFeed(id, feed);
             cameras.setState(id, DeviceState::Busy);
         },
         [](const DialogView& view) {
             const auto* preview = view.find<QWidget>("f_video_player");
             return preview && preview->accessibleDescription().contains(QLatin1String("meeting"));
         }};
    stops += {"camera-disabled",
              [&cameras, id](const DialogView&) { cameras.setState(id, DeviceState::Denied); },
              windowsAbove(1), at("cb_vd_name")};
    stops += {"camera-none",
              [&cameras](const DialogView& view) {
                  for (QWidget* window : view.windows()) {
                      if (window != view.dialog()) {
                          window->hide();
                      }
                  }
                  for (const auto& camera : cameras.devices()) {
                      cameras.unplug(camera.id);
                  }
                  cameras.choose({});
              },
              [](const DialogView& view) {
                  const auto* box = view.find<QComboBox>("cb_vd_name");
                  return box && box->count() == 1 && windowsAbove(0)(view);
              }};
    stops += {{},
              [&cameras, id, name](const DialogView&) {
                  cameras.setPictures(id, ScriptedCameras::Pictures::Moving);
                  cameras.plug({id, name}, DeviceState::Ready);
                  cameras.choose(id);
              },
              hasNoCountdown};
    return stops;
}

Stops speakerStates(ScriptedEngine& engine)
{
    auto& speakers = engine.scriptedSpeakers();
    const Platform::DeviceList devices = speakers.devices();
    Stops stops;
    stops += deviceList("speaker-list", "cb_ad_output_name");
    stops += {"speaker-none",
              [&speakers, devices](const DialogView&) {
                  for (const auto& speaker : devices) {
                      speakers.unplug(speaker.id);
                  }
                  speakers.choose({});
              },
              shown("noHeadsetPage")};
    stops += tips("speaker-tips", qtTrId("ID_HeadsetPage_ClickHere"));
    stops += {{},
              [&speakers, devices](const DialogView&) {
                  for (const auto& speaker : devices) {
                      speakers.plug(speaker);
                  }
                  speakers.choose(devices.front().id);
              },
              shown("page_play")};
    return stops;
}

bool isLevelLit(const DialogView& view)
{
    const QList<QProgressBar*> bars = view.dialog()->findChildren<QProgressBar*>();
    return std::any_of(bars.begin(), bars.end(), [](const QProgressBar* bar) {
        return bar->isVisible() && bar->value() > LitPercent && bar->value() < bar->maximum();
    });
}

bool showsLabel(const DialogView& view, const char* name, const QString& text)
{
    const auto* label = view.find<QLabel>(name);
    return label && label->text() == text;
}

// A busy machine may show each second for no more than a moment.
bool isCountingDown(const DialogView& view)
{
    const auto isAt = [&view](int seconds) {
        return showsLabel(view, "label_Record", qtTrId("ID_MicrophonePage_OfS").arg(seconds));
    };
    return isAt(4) || isAt(3) || isAt(2);
}

Stops microphoneStates(ScriptedEngine& engine)
{
    auto& microphones = engine.microphones();
    const QString id = microphones.currentId();
    const QString name = microphones.currentName();
    Stops stops;
    stops += deviceList("microphone-list", "cb_ad_input_name");
    stops += {"microphone-noisy",
              [&microphones, id](const DialogView&) {
                  microphones.setVolume(id, 130);
                  microphones.rename(id, microphones.currentName() + QLatin1Char(' '));
              },
              always};
    stops += {{},
              [&microphones, id, name](const DialogView&) {
                  microphones.setVolume(id, 90);
                  microphones.rename(id, name);
              },
              always};
    stops += {"microphone-recording", clicking("Btn_Record"),
              [](const DialogView& view) { return isLevelLit(view) && isCountingDown(view); }};
    stops += {"microphone-recorded", nothing, [](const DialogView& view) {
                  return showsLabel(view, "label_Record", qtTrId("ID_MicrophonePage_Again"));
              }};
    stops +=
        {"microphone-disabled",
         [&microphones, id](const DialogView&) { microphones.setState(id, DeviceState::Denied); },
         windowsAbove(1), at("cb_ad_input_name")};
    stops += {"microphone-none",
              [&microphones](const DialogView& view) {
                  for (QWidget* window : view.windows()) {
                      if (window != view.dialog()) {
                          window->hide();
                      }
                  }
                  for (const auto& microphone : microphones.devices()) {
                      microphones.unplug(microphone.id);
                  }
                  microphones.choose({});
              },
              [](const DialogView& view) {
                  return view.find<QWidget>("noMicPage") && windowsAbove(0)(view);
              }};
    stops += tips("microphone-tips", qtTrId("ID_MicrophonePage_ClickHere"));
    return stops;
}

bool isSettled(const DialogView& view)
{
    return eitherEnabled("Btn_CanSee", "Btn_Cant")(view);
}

Stops playing(ScriptedEngine* engine)
{
    Stops stops;
    stops += {"speaker-playing", clicking("tb_play_test_sound"), enabled("item0")};
    stops += {"speaker-finished", nothing, enabled("tb_play_test_sound")};
    const Act pick = engine
                         ? Act([engine](const DialogView& view) { pickPlayedSound(view, *engine); })
                         : Act(pickFirstSound);
    stops += {"speaker-answered", pick, enabled("Btn_CanHear")};
    return stops;
}

Stops walkThrough(ScriptedEngine* engine, bool withStates)
{
    Stops stops;
    stops += {"network", nothing, isMeasured};
    if (withStates) {
        stops += networkStates(*engine);
    }
    stops += {{}, clicking("Btn_Next"), shown("cameraPage")};
    stops += {"camera-picture", nothing, withStates ? Ready(hasNoCountdown) : Ready(isSettled)};
    if (withStates) {
        stops += cameraStates(*engine);
    }
    stops += {{}, answering("Btn_CanSee", "Btn_Cant"), shown("headsetPage")};
    stops += {"speaker", nothing, always};
    if (withStates) {
        stops += speakerStates(*engine);
    }
    const bool canPlay = !engine || !engine->scriptedSpeakers().devices().empty();
    if (canPlay) {
        stops += playing(engine);
    }
    stops += {{}, answering("Btn_CanHear", "Btn_CantListen"), shown("microphonePage")};
    const bool canSpeak = !engine || !engine->microphones().devices().empty();
    stops += {"microphone", nothing, withStates ? Ready(isLevelLit) : Ready(always)};
    if (withStates) {
        stops += microphoneStates(*engine);
    } else if (canSpeak) {
        stops += {{}, clicking("Btn_Record"), eitherEnabled("Btn_Mic_Yes", "Btn_Mic_No")};
    }
    return stops;
}

} // namespace

std::vector<TourStop> TourScript::walk(Platform::ScriptedEngine* engine)
{
    Stops stops = walkThrough(engine, false);
    stops += {{}, answering("Btn_Mic_Yes", "Btn_Mic_No"), shown("resultPage")};
    stops += {"result", nothing, always};
    return stops;
}

std::vector<TourStop> TourScript::walkWithStates(Platform::ScriptedEngine& engine)
{
    auto& microphones = engine.microphones();
    const Platform::DeviceInfo microphone{microphones.currentId(), microphones.currentName()};
    Stops stops = walkThrough(&engine, true); // the microphone is gone at its end
    stops += {{}, clicking("Btn_Mic_No"), shown("resultPage")};
    stops += {"result-failed", nothing, shown("redetectButton")};
    stops += {{}, clicking("redetectButton"), shown("microphonePage")};
    stops += {{},
              [&microphones, microphone](const DialogView&) {
                  microphones.plug(microphone);
                  microphones.choose(microphone.id);
              },
              shown("micPage")};
    stops += {{}, clicking("Btn_Record"), enabled("Btn_Mic_Yes")};
    stops += {{}, clicking("Btn_Mic_Yes"), shown("resultPage")};
    stops += {"result-passed", nothing, shown("okButton")};
    return stops;
}
