#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <time.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <thread>

#include "support/Clock.h"

namespace {

double SystemClockMs() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

double SteadyMs() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

void IgnoreSignal(int) {}

}  // namespace

TEST(ClockTest, TimeIsTheTimeOfDayInMilliseconds) {
  // The clock's step is a microsecond; the rest is for rounding.
  const double before = SystemClockMs() - 0.002;
  const double now = GetTimeMs();
  const double after = SystemClockMs() + 0.002;
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

TEST(ClockTest, TimeCarriesFractionsOfAMillisecond) {
  bool fractionSeen = false;
  for (int i = 0; i < 100000 && !fractionSeen; ++i) {
    const double now = GetTimeMs();
    fractionSeen = now != std::floor(now);
  }
  EXPECT_TRUE(fractionSeen);
}

TEST(ClockTest, UnixTimeIsTheWholeSecondsOfTheSameClock) {
  const double before = GetTimeMs();
  const auto seconds = static_cast<double>(GetUnixTime());
  const double after = GetTimeMs();
  EXPECT_LE(std::floor(before / 1000.0), seconds);
  EXPECT_LE(seconds, std::floor(after / 1000.0));
}

TEST(ClockTest, SleepLastsAtLeastTheGivenMilliseconds) {
  const double start = SteadyMs();
  SleepMs(20);
  EXPECT_GE(SteadyMs() - start, 20.0);
}

TEST(ClockTest, SleepOfZeroReturns) {
  const double start = SteadyMs();
  SleepMs(0);
  EXPECT_LT(SteadyMs() - start, 1000.0);
}

TEST(ClockTest, SleepIsNotShortenedByASignal) {
  struct sigaction handler {};
  struct sigaction previous {};
  handler.sa_handler = IgnoreSignal;
  ASSERT_EQ(sigaction(SIGUSR1, &handler, &previous), 0);

  std::atomic<bool> asleep{false};
  std::atomic<bool> done{false};
  double slept = 0.0;
  std::thread sleeper([&] {
    const double start = SteadyMs();
    asleep = true;
    SleepMs(50);
    slept = SteadyMs() - start;
    done = true;
  });
  while (!asleep) std::this_thread::yield();
  int signals = 0;
  for (; !done; ++signals) {
    pthread_kill(sleeper.native_handle(), SIGUSR1);
    const timespec pause{0, 1000000};
    nanosleep(&pause, nullptr);
  }
  sleeper.join();
  sigaction(SIGUSR1, &previous, nullptr);
  EXPECT_GE(slept, 50.0);
  EXPECT_GE(signals, 1);
}
