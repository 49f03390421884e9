#include "Src/HXUI/HXSemaphore.h"

#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace {

TEST(HXSemaphoreTest, SignalsAreCounted) {
  HXSemaphore semaphore;
  semaphore.Signal();
  semaphore.Signal();
  EXPECT_EQ(semaphore.Wait(), 0);
  EXPECT_EQ(semaphore.Wait(), 0);
}

TEST(HXSemaphoreTest, StartsAtZero) {
  HXSemaphore semaphore;
  std::atomic<bool> signalled{false};
  std::atomic<bool> passedEarly{false};
  std::atomic<bool> started{false};
  std::thread waiter([&] {
    started = true;
    semaphore.Wait();
    passedEarly = !signalled;
  });
  while (!started) std::this_thread::yield();
  for (int i = 0; i < 1000; ++i) std::this_thread::yield();
  signalled = true;
  semaphore.Signal();
  waiter.join();
  EXPECT_FALSE(passedEarly);
}

TEST(HXSemaphoreTest, EverySignalLetsExactlyOneWaiterGo) {
  constexpr int kWaiters = 8;
  HXSemaphore semaphore;
  HXSemaphore done;
  std::atomic<int> passed{0};
  std::vector<std::thread> waiters;
  for (int i = 0; i < kWaiters; ++i) {
    waiters.emplace_back([&] {
      semaphore.Wait();
      ++passed;
      done.Signal();
    });
  }
  for (int i = 1; i <= kWaiters; ++i) {
    semaphore.Signal();
    done.Wait();
    EXPECT_EQ(passed, i);
  }
  for (std::thread& waiter : waiters) waiter.join();
}

#ifdef __linux__
int OwnThreadId() { return gettid(); }

/// True when the thread sleeps, by what the kernel says about it.
bool Sleeps(int threadId) {
  std::ifstream file("/proc/self/task/" + std::to_string(threadId) + "/stat");
  std::string line;
  std::getline(file, line);
  const std::size_t nameEnd = line.rfind(')');
  return nameEnd != std::string::npos && nameEnd + 2 < line.size() && line[nameEnd + 2] == 'S';
}

TEST(HXSemaphoreTest, WakesWaitersInTheOrderInWhichTheyCame) {
  constexpr int kWaiters = 6;
  HXSemaphore semaphore;
  HXSemaphore done;
  std::vector<int> order;
  std::vector<std::thread> waiters;
  for (int i = 0; i < kWaiters; ++i) {
    std::atomic<int> threadId{0};
    waiters.emplace_back([&, i] {
      threadId = OwnThreadId();
      semaphore.Wait();
      order.push_back(i);
      done.Signal();
    });
    while (threadId == 0 || !Sleeps(threadId)) std::this_thread::yield();
  }
  for (int i = 0; i < kWaiters; ++i) {
    semaphore.Signal();
    done.Wait();
  }
  for (std::thread& waiter : waiters) waiter.join();
  EXPECT_EQ(order, (std::vector<int>{0, 1, 2, 3, 4, 5}));
}
#else
int OwnThreadId() { return 1; }

/// There is no simple way to ask here: gives the thread time to fall asleep.
bool Sleeps(int) {
  for (int i = 0; i < 1000; ++i) std::this_thread::yield();
  return true;
}
#endif

std::atomic<int> interruptions{0};

void Count(int) { ++interruptions; }

TEST(HXSemaphoreTest, ASleepingWaiterGoesOnWaitingAfterAnInterruption) {
  struct sigaction count = {};
  struct sigaction former = {};
  count.sa_handler = Count;
  ASSERT_EQ(sigaction(SIGUSR1, &count, &former), 0);
  interruptions = 0;
  HXSemaphore semaphore;
  std::atomic<int> threadId{0};
  std::atomic<bool> passed{false};
  std::atomic<int> status{-1};
  std::thread waiter([&] {
    threadId = OwnThreadId();
    status = semaphore.Wait();
    passed = true;
  });
  const auto waitUntilAsleep = [&] {
    while (!passed && (threadId == 0 || !Sleeps(threadId))) std::this_thread::yield();
  };
  for (int i = 1; i <= 20; ++i) {
    waitUntilAsleep();
    pthread_kill(waiter.native_handle(), SIGUSR1);
    while (!passed && interruptions < i) std::this_thread::yield();
  }
  waitUntilAsleep();
  EXPECT_FALSE(passed);
  semaphore.Signal();
  waiter.join();
  sigaction(SIGUSR1, &former, nullptr);
  EXPECT_EQ(status, 0);
}

}  // namespace
