#include "values/debugmode.h"

#include <atomic>

namespace {
std::atomic<bool> s_enabled{false};
}

bool DebugMode::isEnabled()
{
    return s_enabled.load(std::memory_order_relaxed);
}

void DebugMode::setEnabled(bool enabled)
{
    s_enabled.store(enabled, std::memory_order_relaxed);
}
