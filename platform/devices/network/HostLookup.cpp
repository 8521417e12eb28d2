// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/HostLookup.h"

#include "platform/backend/DetachedThread.h"
#include "platform/devices/network/NetworkSystem.h"

#include <QUrl>

#include <memory>

namespace Platform {

namespace {

HostLookup::Answer lookUp(const QByteArray& name)
{
    NetworkSystem::begin();
    addrinfo hints = {};
    hints.ai_socktype = SOCK_DGRAM; // else every address comes once for each kind
    hints.ai_flags = AI_ADDRCONFIG;
    addrinfo* found = nullptr;
    const int failure = ::getaddrinfo(name.constData(), nullptr, &hints, &found);
    if (failure != 0) {
        return {{}, NetworkSystem::textOf(failure), NetworkSystem::isUnknownName(failure)};
    }
    const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> list(found, &::freeaddrinfo);
    HostLookup::Answer answer;
    for (const addrinfo* each = list.get(); each; each = each->ai_next) {
        answer.addresses.append(QHostAddress(each->ai_addr));
    }
    return answer;
}

} // namespace

HostLookup::HostLookup(const QString& name, const Found& found)
{
    const Mailbox::Sender sender = m_mailbox.sender();
    const bool hasBegun = DetachedThread::run([sender, found, encoded = QUrl::toAce(name)] {
        sender.post([found, answer = lookUp(encoded)] { found(answer); });
    });
    if (!hasBegun) {
        sender.post([found] { found({{}, QStringLiteral("no thread can be made"), false}); });
    }
}

} // namespace Platform
