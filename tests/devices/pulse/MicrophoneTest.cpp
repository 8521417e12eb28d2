// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/pulse/MicrophoneTest.h"

#include "platform/backend/LevelScale.h"

#include <QTest>
#include <algorithm>
#include <cmath>

using namespace Platform;

namespace TestSupport {

namespace {

bool isAt(double level, double decibels)
{
    return std::abs(level - LevelScale::levelOf(decibels)) < 0.01;
}

} // namespace

void MicrophoneTest::init()
{
    SoundTest::init();
    m_listener = std::make_unique<MicrophoneListener>();
    m_microphone = m_sound->createMicrophone(*m_listener);
    QTRY_COMPARE_WITH_TIMEOUT(m_microphone->currentId(), id("microphone_a"), TimeoutMs);
}

void MicrophoneTest::cleanup()
{
    m_speaker.reset();
    m_microphone.reset();
    SoundTest::cleanup();
}

bool MicrophoneTest::isLevelAt(double decibels) const
{
    return isAt(level(), decibels);
}

bool MicrophoneTest::areLevelsAt(double decibels) const
{
    const QList<double>& levels = m_listener->levels;
    return !levels.isEmpty() && std::all_of(levels.begin(), levels.end(), [decibels](double level) {
        return isAt(level, decibels);
    });
}

void MicrophoneTest::listenOn(const char* speakerId)
{
    m_speaker = m_sound->createSpeaker(m_noListener);
    m_speaker->setCurrent(id(speakerId));
    m_microphone->open();
    m_microphone->setListening(true);
}

int MicrophoneTest::captures()
{
    return m_server->control({id("list"), id("source-outputs")}).count("Microphone check");
}

int MicrophoneTest::playbacks()
{
    const QByteArray list = m_server->control({id("list"), id("sink-inputs")});
    return list.count("Listening to oneself") + list.count("application.name = \"pacat\"");
}

} // namespace TestSupport
