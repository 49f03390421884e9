#include "Src/HXUI/HXMutex.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

TEST(HXMutexTest, OwnerMayLockAgain) {
  HXMutex mutex;
  mutex.Lock();
  mutex.Lock();
  mutex.Unlock();
  mutex.Unlock();
  mutex.Lock();
  mutex.Unlock();
}

TEST(HXMutexTest, OthersWaitUntilItIsUnlockedAsOftenAsLocked) {
  HXMutex mutex;
  std::atomic<bool> started{false};
  std::atomic<bool> released{false};
  std::atomic<bool> enteredEarly{false};
  mutex.Lock();
  mutex.Lock();
  std::thread other([&] {
    started = true;
    mutex.Lock();
    enteredEarly = !released;
    mutex.Unlock();
  });
  while (!started) std::this_thread::yield();
  mutex.Unlock();
  // One lock is left: give the other thread every chance to get in wrongly.
  for (int i = 0; i < 1000; ++i) std::this_thread::yield();
  released = true;
  mutex.Unlock();
  other.join();
  EXPECT_FALSE(enteredEarly);
}

TEST(HXMutexTest, GuardsSharedData) {
  constexpr int kRounds = 20000;
  HXMutex mutex;
  int counter = 0;
  const auto count = [&] {
    for (int i = 0; i < kRounds; ++i) {
      mutex.Lock();
      ++counter;
      mutex.Unlock();
    }
  };
  std::thread first(count);
  std::thread second(count);
  first.join();
  second.join();
  EXPECT_EQ(counter, 2 * kRounds);
}

}  // namespace
