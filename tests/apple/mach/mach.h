#pragma once

#include <cstdint>

using mach_port_t = std::uint32_t;
using task_t = mach_port_t;
using semaphore_t = mach_port_t;
using kern_return_t = int;

constexpr mach_port_t MACH_PORT_NULL = 0;
constexpr kern_return_t KERN_ABORTED = 14;
constexpr int SYNC_POLICY_FIFO = 0;

extern "C" task_t mach_task_self();
