// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/Mailbox.h"

#include <QMetaObject>
#include <QObject>

#include <mutex>

namespace Platform {

struct Mailbox::Sender::Shared
{
    std::mutex mutex;
    std::unique_ptr<QObject> receiver; // null after close(); deleting it drops its posted events
};

void Mailbox::Sender::post(Letter letter) const
{
    const std::scoped_lock lock(m_shared->mutex);
    if (m_shared->receiver) {
        QMetaObject::invokeMethod(m_shared->receiver.get(), std::move(letter),
                                  Qt::QueuedConnection);
    }
}

Mailbox::Mailbox()
{
    m_sender.m_shared = std::make_shared<Sender::Shared>();
    m_sender.m_shared->receiver = std::make_unique<QObject>();
}

Mailbox::~Mailbox()
{
    close();
}

void Mailbox::close()
{
    std::unique_ptr<QObject> receiver;
    {
        const std::scoped_lock lock(m_sender.m_shared->mutex);
        receiver = std::move(m_sender.m_shared->receiver);
    }
}

} // namespace Platform
