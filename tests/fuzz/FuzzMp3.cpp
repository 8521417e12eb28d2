// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/Mp3Decoder.h"
#include "platform/devices/sound/SoundBuffer.h"
#include "tests/fuzz/FuzzInput.h"

#include <QTemporaryFile>

using namespace Platform;

// A sound file that was damaged or exchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput::application();
    static QTemporaryFile file;
    FuzzInput::require(file.open());
    file.resize(0);
    file.write(FuzzInput::bytes(data, size));
    file.close();
    SoundBuffer buffer;
    Mp3Decoder::decode(file.fileName(), 1.0F, buffer);
    return 0;
}
