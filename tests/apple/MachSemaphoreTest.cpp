#include <gtest/gtest.h>
#include <mach/mach.h>
#include <mach/semaphore.h>

#include <vector>

#include "Src/HXUI/HXSemaphore.h"

namespace {

constexpr semaphore_t kSemaphore = 7;
constexpr kern_return_t kTerminated = 37;

/// Stands in for the one of macOS.
struct Kernel {
  /// What the waits end with, one after the other.
  std::vector<kern_return_t> statuses;
  std::size_t waits = 0;
  int signals = 0;
  int semaphores = 0;
  int policy = -1;
  int firstCount = -1;
};

Kernel kernel;

}  // namespace

task_t mach_task_self() { return 3; }

kern_return_t semaphore_create(task_t, semaphore_t* semaphore, int policy, int value) {
  *semaphore = kSemaphore;
  ++kernel.semaphores;
  kernel.policy = policy;
  kernel.firstCount = value;
  return 0;
}

kern_return_t semaphore_destroy(task_t, semaphore_t semaphore) {
  kernel.semaphores -= semaphore == kSemaphore ? 1 : 0;
  return 0;
}

kern_return_t semaphore_signal(semaphore_t semaphore) {
  kernel.signals += semaphore == kSemaphore ? 1 : 0;
  return 0;
}

kern_return_t semaphore_wait(semaphore_t) { return kernel.statuses.at(kernel.waits++); }

namespace {

TEST(MachSemaphoreTest, IsOneOfTheKernelsFromBeginningToEnd) {
  kernel = {};
  {
    HXSemaphore semaphore;
    EXPECT_EQ(kernel.semaphores, 1);
    EXPECT_EQ(kernel.policy, SYNC_POLICY_FIFO);
    EXPECT_EQ(kernel.firstCount, 0);
    semaphore.Signal();
    EXPECT_EQ(kernel.signals, 1);
  }
  EXPECT_EQ(kernel.semaphores, 0);
}

TEST(MachSemaphoreTest, AnAbortedWaitGoesOn) {
  kernel = {.statuses = {14, 14, 0}};
  EXPECT_EQ(HXSemaphore().Wait(), 0);
  EXPECT_EQ(kernel.waits, 3U);
}

TEST(MachSemaphoreTest, AnyOtherEndIsReturned) {
  kernel = {.statuses = {14, kTerminated, 0}};
  EXPECT_EQ(HXSemaphore().Wait(), kTerminated);
  EXPECT_EQ(kernel.waits, 2U);
}

}  // namespace
