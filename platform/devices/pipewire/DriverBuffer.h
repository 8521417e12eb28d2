// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

struct pw_buffer;
struct spa_buffer;

namespace Platform {

// The memory that a driver shares (DMA-BUF). PipeWire maps shared memory of processes, but not
// this.
namespace DriverBuffer {

void map(pw_buffer& buffer);
void unmap(pw_buffer& buffer);

// While it lives, the buffer may be read: the caches of processor and device agree.
class Reading
{
public:
    explicit Reading(const spa_buffer& buffer);
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

private:
    const spa_buffer& m_buffer;
};

} // namespace DriverBuffer
} // namespace Platform
