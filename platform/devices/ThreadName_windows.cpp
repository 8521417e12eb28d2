// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/ThreadName.h"

#include <QLibrary>
#include <QThread>

#include <windows.h>

// Qt 5 tells the system only if it was built by Microsoft's compiler. The function came with
// Windows 10, so it is looked up.
void Platform::ThreadName::set(QThread& thread, const QString& name)
{
    using SetDescription = HRESULT(WINAPI*)(HANDLE, PCWSTR);
    static const auto setDescription = reinterpret_cast<SetDescription>(
        QLibrary::resolve(QStringLiteral("kernel32"), "SetThreadDescription"));
    thread.setObjectName(name);
    if (setDescription) {
        // Without a context object it runs on the thread that starts.
        QObject::connect(&thread, &QThread::started, [name] {
            setDescription(GetCurrentThread(), reinterpret_cast<PCWSTR>(name.utf16()));
        });
    }
}
