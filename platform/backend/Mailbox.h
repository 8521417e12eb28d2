// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <functional>
#include <memory>

class QObject;

namespace Platform {

// The only way from a media thread to the GUI thread. The owner of the mailbox lives on the GUI
// thread; media threads hold copies of its sender. Letters run on the GUI thread from the event
// loop, in order. After close() or the destructor none runs, not even those posted before. Posting
// is thread-safe and never waits for the GUI thread.
class CLASSROOMBACKEND_EXPORT Mailbox
{
public:
    using Letter = std::function<void()>;

    class CLASSROOMBACKEND_EXPORT Sender
    {
    public:
        void post(Letter letter) const;

    private:
        friend class Mailbox;
        struct Shared;
        std::shared_ptr<Shared> m_shared;
    };

    Mailbox();
    ~Mailbox();
    Mailbox(const Mailbox&) = delete;
    Mailbox& operator=(const Mailbox&) = delete;

    Sender sender() const { return m_sender; }
    void close(); // idempotent

private:
    Sender m_sender;
};

} // namespace Platform
