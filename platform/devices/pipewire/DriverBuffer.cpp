// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/DriverBuffer.h"

#include <cerrno>
#include <cstdint>
#include <linux/dma-buf.h>
#include <pipewire/stream.h>
#include <sys/ioctl.h>
#include <sys/mman.h>

namespace Platform::DriverBuffer {

namespace {

template <typename Function>
void forEachBlock(const spa_buffer& buffer, Function function)
{
    for (uint32_t i = 0; i < buffer.n_datas; ++i) {
        if (buffer.datas[i].type == SPA_DATA_DmaBuf) {
            function(buffer.datas[i]);
        }
    }
}

void synchronize(const spa_buffer& buffer, std::uint64_t flags)
{
    const dma_buf_sync request{flags | DMA_BUF_SYNC_READ};
    forEachBlock(buffer, [&request](const spa_data& block) {
        while (ioctl(static_cast<int>(block.fd), DMA_BUF_IOCTL_SYNC, &request) < 0 &&
               (errno == EINTR || errno == EAGAIN)) {
        }
    });
}

} // namespace

void map(pw_buffer& buffer)
{
    forEachBlock(*buffer.buffer, [](spa_data& block) {
        if (!block.data) {
            void* const memory =
                mmap(nullptr, block.maxsize, PROT_READ, MAP_SHARED, static_cast<int>(block.fd),
                     static_cast<off_t>(block.mapoffset));
            block.data = memory == MAP_FAILED ? nullptr : memory;
        }
    });
}

void unmap(pw_buffer& buffer)
{
    forEachBlock(*buffer.buffer, [](spa_data& block) {
        if (block.data) {
            munmap(block.data, block.maxsize);
            block.data = nullptr;
        }
    });
}

Reading::Reading(const spa_buffer& buffer) : m_buffer(buffer)
{
    synchronize(m_buffer, DMA_BUF_SYNC_START);
}

Reading::~Reading()
{
    synchronize(m_buffer, DMA_BUF_SYNC_END);
}

} // namespace Platform::DriverBuffer
