// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

// Tells the thread sanitizer what Qt hands over from one thread to another. Debian's Qt isn't built
// with the sanitizer, and its locks are atomic instructions: what a posted call reads would look
// like a race with the thread that wrote it. Each function goes before the one of Qt that it calls.

#include <QMetaObject>
#include <QSemaphore>
#include <QThread>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace {

template <typename Function>
Function ofQt(const char* name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

// A posted call, which carries what was written before it was posted.
class HandedOver final : public QtPrivate::QSlotObjectBase
{
public:
    explicit HandedOver(QtPrivate::QSlotObjectBase* call) : QSlotObjectBase(&handle), m_call(call)
    {
        __tsan_release(this);
    }

private:
    static void handle(int which, QSlotObjectBase* self, QObject* receiver, void** arguments,
                       bool* /*isEqual*/)
    {
        __tsan_acquire(self);
        auto* const handed = static_cast<HandedOver*>(self);
        if (which == Call) {
            handed->m_call->call(receiver, arguments);
        } else if (which == Destroy) {
            handed->m_call->destroyIfLastRef();
            delete handed;
        }
    }

    QtPrivate::QSlotObjectBase* m_call;
};

} // namespace

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot,
                                   Qt::ConnectionType type, void* result)
{
    using Invoke = bool (*)(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*);
    static const auto invoke =
        ofQt<Invoke>("_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseE"
                     "N2Qt14ConnectionTypeEPv");
    return invoke(object, new HandedOver(slot), type, result);
}

void QThread::start(Priority priority)
{
    using Start = void (*)(QThread*, Priority);
    static const auto start = ofQt<Start>("_ZN7QThread5startENS_8PriorityE");
    connect(
        this, &QThread::finished, this, [this] { __tsan_release(this); }, Qt::DirectConnection);
    start(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    using Wait = bool (*)(QThread*, QDeadlineTimer);
    static const auto wait = ofQt<Wait>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool hasEnded = wait(this, deadline);
    if (hasEnded) {
        __tsan_acquire(this);
    }
    return hasEnded;
}

bool QThread::wait(unsigned long ms)
{
    return wait(ms == ULONG_MAX ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(ms));
}

void QSemaphore::release(int count)
{
    using Release = void (*)(QSemaphore*, int);
    static const auto release = ofQt<Release>("_ZN10QSemaphore7releaseEi");
    __tsan_release(this);
    release(this, count);
}

void QSemaphore::acquire(int count)
{
    using Acquire = void (*)(QSemaphore*, int);
    static const auto acquire = ofQt<Acquire>("_ZN10QSemaphore7acquireEi");
    acquire(this, count);
    __tsan_acquire(this);
}

bool QSemaphore::tryAcquire(int count, int timeoutMs)
{
    using Acquire = bool (*)(QSemaphore*, int, int);
    static const auto acquire = ofQt<Acquire>("_ZN10QSemaphore10tryAcquireEii");
    const bool isAcquired = acquire(this, count, timeoutMs);
    if (isAcquired) {
        __tsan_acquire(this);
    }
    return isAcquired;
}
