// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/WriterQueue.h"

#include "platform/backend/FileNames.h"
#include "platform/backend/Log.h"
#include "platform/backend/StepwiseWait.h"
#include "platform/backend/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <algorithm>
#include <chrono>
#include <system_error>

namespace Platform {

namespace {

QString takeLock(QLockFile& lock, const QString& path)
{
    const QString name = path + QStringLiteral(".lock");
    // To read a named pipe waits for its writer.
    if (!WholeFile::problem(name).isEmpty()) {
        return qtTrId("ID_Engine_File_LockNotRegular").arg(name);
    }
    if (lock.tryLock(FileWriter::LockTimeoutMs)) {
        return {};
    }
    return lock.error() == QLockFile::LockFailedError ? qtTrId("ID_Engine_File_LockHeld").arg(name)
                                                      : qtTrId("ID_Engine_File_LockNotMade");
}

std::optional<QByteArray> changed(QByteArray content,
                                  const std::vector<FileWriter::Transform>& changes)
{
    for (const FileWriter::Transform& change : changes) {
        const std::optional<QByteArray> next = change(content);
        if (!next) {
            return std::nullopt;
        }
        content = *next;
    }
    return content;
}

// Empty on success, otherwise what went wrong.
QString write(const WriterQueue::Order& order)
{
    QString problem = FileNames::problem(order.path);
    if (problem.isEmpty()) {
        problem = WholeFile::problem(order.path);
    }
    if (!problem.isEmpty()) {
        return problem;
    }
    if (!WholeFile::makeFolder(QFileInfo(order.path).absolutePath())) {
        return qtTrId("ID_Engine_File_NoFolder");
    }
    QByteArray content = order.content.value_or(QByteArray());
    QLockFile lock(order.path + QStringLiteral(".lock"));
    if (!order.content) {
        problem = takeLock(lock, order.path);
        if (problem.isEmpty()) {
            problem = WholeFile::read(order.path, &content);
        }
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    const std::optional<QByteArray> made = changed(std::move(content), order.changes);
    return made ? WholeFile::write(order.path, *made) : qtTrId("ID_Engine_File_NotMade");
}

} // namespace

void WriterQueue::add(Order order, bool isUrgent)
{
    const std::scoped_lock lock(m_mutex);
    Order* const waiting = order.path.isEmpty() ? nullptr : waitingFor(order.path);
    if (waiting && !merge(*waiting, order)) {
        m_problems[order.path] = qtTrId("ID_Engine_File_TooManyChanges");
        qCWarning(Log::files).noquote()
            << "Not written:" << order.path << "-" << m_problems[order.path];
        return;
    }
    if (!waiting && isUrgent) {
        m_orders.push_front(std::move(order));
    } else if (!waiting) {
        m_orders.push_back(std::move(order));
    } else if (isUrgent) {
        const auto place = std::find_if(m_orders.begin(), m_orders.end(),
                                        [waiting](const Order& each) { return &each == waiting; });
        std::rotate(m_orders.begin(), place, place + 1);
    }
    start();
}

// Waits for the thread only if it has done its work.
bool WriterQueue::wait(int timeoutMs)
{
    startOrRun();
    std::unique_lock lock(m_mutex);
    const bool hasEnded = waitInSteps(timeoutMs, [this, &lock](std::chrono::milliseconds time) {
        return m_ended.wait_for(lock, time, [this] { return !m_isRunning && m_orders.empty(); });
    });
    if (hasEnded && m_thread.joinable()) {
        m_thread.join();
    }
    return hasEnded;
}

void WriterQueue::startOrRun()
{
    {
        const std::scoped_lock lock(m_mutex);
        if (m_orders.empty() || m_isRunning) {
            return;
        }
        start();
        if (m_isRunning) {
            return;
        }
        m_isRunning = true;
    }
    run();
}

FileWriter::Outcome WriterQueue::outcome()
{
    const std::scoped_lock lock(m_mutex);
    FileWriter::Outcome result;
    if (m_current && m_current->isUnheard) {
        result.waiting << m_current->path;
    }
    for (const Order& order : m_orders) {
        if (order.isUnheard && !result.waiting.contains(order.path)) {
            result.waiting << order.path;
        }
    }
    for (const auto& [path, problem] : m_problems) {
        result.failed << path;
    }
    return result;
}

WriterQueue::Order* WriterQueue::waitingFor(const QString& path)
{
    const auto found = std::find_if(m_orders.begin(), m_orders.end(),
                                    [&path](const Order& each) { return each.path == path; });
    return found == m_orders.end() ? nullptr : &*found;
}

// False if too many changes wait.
bool WriterQueue::merge(Order& waiting, Order& order)
{
    if (order.kind == Order::Kind::Remove || order.content) {
        waiting.content = std::move(order.content);
        waiting.changes.clear();
    } else if (waiting.kind == Order::Kind::Remove) {
        waiting.content = QByteArray();
    }
    if (waiting.changes.size() + order.changes.size() > FileWriter::MaxChanges) {
        return false;
    }
    waiting.kind = order.kind;
    std::move(order.changes.begin(), order.changes.end(), std::back_inserter(waiting.changes));
    std::move(order.listeners.begin(), order.listeners.end(),
              std::back_inserter(waiting.listeners));
    waiting.isUnheard = order.isUnheard || (waiting.isUnheard && !order.content);
    return true;
}

// If no thread can be made, the orders wait for the next try.
void WriterQueue::start()
{
    if (m_isRunning) {
        return;
    }
    if (m_thread.joinable()) {
        m_thread.join(); // it has ended: it holds no lock and waits for nothing
    }
    try {
        m_thread = std::thread([this] { run(); });
        m_isRunning = true;
    } catch (const std::system_error&) {
        qCDebug(Log::files, "No thread can be made for files; they are written at the end");
    }
}

void WriterQueue::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_orders.empty()) {
        Order order = std::move(m_orders.front());
        m_orders.pop_front();
        m_current = &order;
        lock.unlock();
        carryOut(order);
        lock.lock();
        m_current = nullptr;
    }
    m_isRunning = false;
    m_ended.notify_all();
}

void WriterQueue::carryOut(Order& order)
{
    if (order.kind == Order::Kind::Job) {
        order.job();
        return;
    }
    QString problem;
    if (order.kind == Order::Kind::Remove) {
        QFile::remove(order.path);
    } else {
        problem = write(order);
    }
    QString known;
    {
        const std::scoped_lock lock(m_mutex);
        known = m_problems[order.path];
        m_problems.erase(order.path);
        if (!problem.isEmpty() && order.isUnheard) {
            m_problems[order.path] = problem;
        }
    }
    if (!problem.isEmpty() && order.isUnheard && problem != known) {
        qCWarning(Log::files).noquote() << "Not written:" << order.path << "-" << problem;
    }
    for (const FileWriter::Done& listener : order.listeners) {
        listener(problem);
    }
}

} // namespace Platform
