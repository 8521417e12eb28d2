// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/CalmHeap.h"

#include "benchmarks/DialogStage.h"

#include <QPixmapCache>
#include <malloc.h>

// Not by QPixmapCache::clear(), which would stop the timer.
void CalmHeap::dropIcons(int calmMs)
{
    const int usualKb = QPixmapCache::cacheLimit();
    QPixmapCache::setCacheLimit(0);
    DialogStage::settle(calmMs);
    QPixmapCache::setCacheLimit(usualKb);
}

std::size_t CalmHeap::bytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}
