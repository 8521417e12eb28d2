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
#include <vector>

namespace {

using ReportReader::Read;

// What may be read and not yet handed over, in KiB of files.
constexpr int ReadAheadKiB = 512;
constexpr int BytesPerKiB = 1024;
// The most that one block has. To wake a thread for each small file takes longer than to read it.
constexpr int BlockFiles = 16;
constexpr int BlockKiB = 128;

// Reads files on several threads, each a block of them at a time. The caller gets the blocks in the
// order of the files.
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
        for (Block block = take(); block.count > 0; block = take()) {
            for (int i = 0; i < block.count; ++i) {
                block.reads.push_back(read(block.first + i));
            }
            const std::lock_guard<std::mutex> lock(m_blocksLock);
            m_blocks.emplace(block.first, std::move(block));
            m_hasBlock.notify_one();
        }
    }

    // The block that begins with this file: the next one after the last block.
    std::vector<Read> waitFor(int first)
    {
        std::unique_lock<std::mutex> lock(m_blocksLock);
        m_hasBlock.wait(lock, [this, first] { return m_blocks.count(first) > 0; });
        auto node = m_blocks.extract(first);
        lock.unlock();
        m_budget.release(node.mapped().weight);
        return std::move(node.mapped().reads);
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
    struct Block
    {
        int first = 0;
        int count = 0; // 0: no file is left
        int weight = 0;
        std::vector<Read> reads;
    };

    // In order, so the block that is waited for always has its share of the memory.
    Block take()
    {
        const std::lock_guard<std::mutex> lock(m_takeLock);
        Block block;
        block.first = m_next;
        while (m_next < m_files.size() && block.count < BlockFiles && block.weight < BlockKiB) {
            const qint64 size = QFileInfo(m_files.at(m_next)).size() / BytesPerKiB + 1;
            block.weight += static_cast<int>(std::min<qint64>(size, ReadAheadKiB));
            ++block.count;
            ++m_next;
        }
        block.weight = std::min(block.weight, ReadAheadKiB);
        m_budget.acquire(block.weight);
        return block;
    }

    const QStringList m_files;
    const Redaction m_redaction;
    QSemaphore m_budget{ReadAheadKiB};
    std::mutex m_takeLock;
    int m_next = 0;
    std::mutex m_blocksLock;
    std::condition_variable m_hasBlock;
    std::map<int, Block> m_blocks; // by their first file
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
    for (int next = 0; next < files.size();) {
        const std::vector<Read> reads =
            threads > 0 ? ahead->waitFor(next) : std::vector<Read>{ahead->read(next)};
        std::for_each(reads.begin(), reads.end(), handOver);
        next += static_cast<int>(reads.size());
    }
}
