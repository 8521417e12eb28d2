// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/FileWriter.h"

#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace Platform {

// What waits for the disk, one order for each path, and the thread that carries it out. The thread
// ends if nothing waits. Thread-safe.
class WriterQueue
{
public:
    struct Order
    {
        enum class Kind { Change, Remove, Job };

        Kind kind = Kind::Change;
        QString path;
        std::optional<QByteArray> content; // replaces the present content
        std::vector<FileWriter::Transform> changes;
        std::vector<FileWriter::Done> listeners;
        bool isUnheard = false; // somebody waits for no outcome
        std::function<void()> job;
    };

    WriterQueue() = default;
    WriterQueue(const WriterQueue&) = delete;
    WriterQueue& operator=(const WriterQueue&) = delete;

    void add(Order order, bool isUrgent = false);
    bool wait(int timeoutMs);
    void startOrRun(); // on the calling thread if no other can be made
    FileWriter::Outcome outcome();

private:
    Order* waitingFor(const QString& path);
    bool merge(Order& waiting, Order& order);
    void start();
    void run();
    void carryOut(Order& order);

    std::mutex m_mutex;
    std::condition_variable m_ended;
    std::deque<Order> m_orders;
    const Order* m_current = nullptr;
    std::map<QString, QString> m_problems; // by path, of the last try
    std::thread m_thread;
    bool m_isRunning = false;
};

} // namespace Platform
