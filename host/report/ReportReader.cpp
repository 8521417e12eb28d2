// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportReader.h"

#include "host/report/Redaction.h"
#include "host/report/ReportFile.h"
#include "platform/backend/DetachedThread.h"

#include <QFileInfo>
#include <QSemaphore>
#include <QThread>
#include <algorithm>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>

namespace {

using ReportReader::Read;

// What may be read and not yet handed over, in KiB of files.
constexpr int ReadAheadKiB = 512;
constexpr int BytesPerKiB = 1024;

// The files in their order. Each is taken by one thread, and its result waits for its turn.
class ReadAhead
{
public:
    ReadAhead(const QStringList& files, const Redaction& redaction)
        : m_files(files), m_redaction(redaction)
    {
    }

    // Until no file is left; on any thread.
    void work()
    {
        for (Place place = take(); place.index < m_files.size(); place = take()) {
            Result result{read(place.index), place.weight};
            const std::lock_guard<std::mutex> lock(m_resultsLock);
            m_results.emplace(place.index, std::move(result));
            m_hasResult.notify_one();
        }
    }

    Read waitFor(int index)
    {
        std::unique_lock<std::mutex> lock(m_resultsLock);
        m_hasResult.wait(lock, [this, index] { return m_results.count(index) > 0; });
        auto node = m_results.extract(index);
        lock.unlock();
        m_budget.release(node.mapped().weight);
        return std::move(node.mapped().read);
    }

    Read read(int index) const
    {
        Read result;
        result.file = m_files.at(index);
        result.report = ReportFile::read(result.file, &result.problem);
        if (result.report) {
            result.report = m_redaction.redacted(*result.report);
        }
        return result;
    }

private:
    struct Place
    {
        int index = 0;
        int weight = 0;
    };

    struct Result
    {
        Read read;
        int weight = 0;
    };

    // In order, so the file that is waited for always has its share of the memory.
    Place take()
    {
        const std::lock_guard<std::mutex> lock(m_takeLock);
        if (m_next == m_files.size()) {
            return {m_next, 0};
        }
        const qint64 size = QFileInfo(m_files.at(m_next)).size() / BytesPerKiB + 1;
        const int weight = static_cast<int>(std::min<qint64>(size, ReadAheadKiB));
        m_budget.acquire(weight);
        return {m_next++, weight};
    }

    const QStringList m_files;
    const Redaction m_redaction;
    QSemaphore m_budget{ReadAheadKiB};
    std::mutex m_takeLock;
    int m_next = 0;
    std::mutex m_resultsLock;
    std::condition_variable m_hasResult;
    std::map<int, Result> m_results; // by index
};

} // namespace

void ReportReader::readAll(const QStringList& files, const Redaction& redaction,
                           const std::function<void(const Read& read)>& handOver)
{
    const auto ahead = std::make_shared<ReadAhead>(files, redaction);
    const int wanted = std::min(static_cast<int>(files.size()), QThread::idealThreadCount());
    int threads = 0;
    while (threads < wanted && Platform::DetachedThread::run([ahead] { ahead->work(); })) {
        ++threads;
    }
    for (int i = 0; i < files.size(); ++i) {
        handOver(threads > 0 ? ahead->waitFor(i) : ahead->read(i));
    }
}
