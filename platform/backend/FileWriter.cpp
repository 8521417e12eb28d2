// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"

#include "platform/backend/StepwiseWait.h"
#include "platform/backend/WriterQueue.h"

#include <chrono>
#include <future>
#include <memory>

namespace Platform {

namespace {

using Order = WriterQueue::Order;

// Never destroyed: that would wait for a disk that doesn't answer.
WriterQueue& queue()
{
    static auto* const theQueue = new WriterQueue;
    return *theQueue;
}

Order orderFor(const QString& path, FileWriter::Done done)
{
    Order order;
    order.path = path;
    order.isUnheard = !done;
    if (done) {
        order.listeners.push_back(std::move(done));
    }
    return order;
}

} // namespace

void FileWriter::update(const QString& path, Transform transform, Done done)
{
    Order order = orderFor(path, std::move(done));
    order.changes.push_back(std::move(transform));
    queue().add(std::move(order));
}

void FileWriter::replace(const QString& path, const QByteArray& content, Done done)
{
    Order order = orderFor(path, std::move(done));
    order.content = content;
    queue().add(std::move(order));
}

void FileWriter::remove(const QString& path)
{
    Order order = orderFor(path, {});
    order.kind = Order::Kind::Remove;
    queue().add(std::move(order));
}

void FileWriter::enqueue(std::function<void()> job)
{
    Order order;
    order.kind = Order::Kind::Job;
    order.job = std::move(job);
    queue().add(std::move(order));
}

QString FileWriter::replaceNow(const QString& path, const QByteArray& content, int timeoutMs)
{
    const auto outcome = std::make_shared<std::promise<QString>>();
    std::future<QString> told = outcome->get_future();
    Order order =
        orderFor(path, [outcome](const QString& problem) { outcome->set_value(problem); });
    order.content = content;
    queue().add(std::move(order), true);
    queue().startOrRun();
    const auto isTold = [&told](std::chrono::milliseconds time) {
        return told.wait_for(time) == std::future_status::ready;
    };
    if (!waitInSteps(timeoutMs, isTold)) {
        return qtTrId("ID_Engine_File_DiskSilent");
    }
    return told.get();
}

bool FileWriter::waitForWritten(int timeoutMs)
{
    return queue().wait(timeoutMs);
}

FileWriter::Outcome FileWriter::outcome()
{
    return queue().outcome();
}

} // namespace Platform
