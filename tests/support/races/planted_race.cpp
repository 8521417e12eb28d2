// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DetachedThread.h"
#include "platform/backend/Mailbox.h"

#include <QCoreApplication>

#include <unistd.h>

using namespace Platform;

namespace {

constexpr unsigned EnoughUs = 200000; // for the thread; sleeping orders nothing

int theNumber = 0;

} // namespace

// A thread and the main thread write to one number: in any order ("planted"), or one after the
// other, with a letter between them ("handed-over").
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == QLatin1String("planted")) {
        DetachedThread::run([] { ++theNumber; });
        ++theNumber;
        ::usleep(EnoughUs);
        return 0;
    }
    Mailbox mailbox;
    DetachedThread::run([sender = mailbox.sender()] {
        ++theNumber;
        sender.post([] {
            ++theNumber;
            QCoreApplication::quit();
        });
    });
    return QCoreApplication::exec();
}
