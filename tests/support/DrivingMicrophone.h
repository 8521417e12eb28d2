// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/MicrophoneFeed.h"

#include <QByteArray>

struct pw_context;
struct pw_stream;
struct pw_stream_events;
struct pw_thread_loop;

namespace TestSupport {

// One of PipeWire, which drives all that hears it: a round of theirs for each piece.
class DrivingMicrophone final : public MicrophoneFeed
{
public:
    explicit DrivingMicrophone(const QByteArray& name);
    ~DrivingMicrophone() override;
    DrivingMicrophone(const DrivingMicrophone&) = delete;
    DrivingMicrophone& operator=(const DrivingMicrophone&) = delete;

    bool isPlugged() const override { return m_stream != nullptr; }
    void hear(const float* piece) override;

private:
    void connect(const QByteArray& name);

    pw_thread_loop* m_loop;
    pw_stream* m_stream = nullptr;
};

} // namespace TestSupport
