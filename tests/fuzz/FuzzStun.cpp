// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunAnswerer.h"
#include "platform/devices/network/StunClient.h"
#include "tests/fuzz/FuzzInput.h"

using namespace Platform;

// What a server sends to a check, and what anybody sends to a responder.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    StunClient client;
    QByteArray datagram = FuzzInput::bytes(data, size);
    StunAnswerer().answer(datagram, QHostAddress(QHostAddress::LocalHost), 1);
    client.readAnswer(datagram);
    // An answer counts only if it has the random number of a request, which nobody guesses.
    constexpr int IdOffset = 4;
    const StunId id = client.createRequest()->id;
    if (datagram.size() >= IdOffset + int(id.size())) {
        datagram.replace(IdOffset, int(id.size()), reinterpret_cast<const char*>(id.data()),
                         int(id.size()));
        client.readAnswer(datagram);
    }
    return 0;
}
