#include "Src/HXUI/Cocoa/HXCocoaTimer.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <memory>

#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t kNever = 3600 * 1000;

double MillisecondsSince(std::chrono::steady_clock::time_point start) {
  const std::chrono::duration<double, std::milli> elapsed =
      std::chrono::steady_clock::now() - start;
  return elapsed.count();
}

class HXCocoaTimerTest : public ToolkitFixture {
 protected:
  void PumpTicks(std::size_t count) {
    PumpUntil([&] { return owner->timers.size() >= count; }, "the timer to fire");
  }
  RecordingPanel* owner = new RecordingPanel(window.get(), {0, 0}, {10, 10});
};

TEST_F(HXCocoaTimerTest, StandsStillUntilStarted) {
  HXCocoaTimer timer;
  EXPECT_FALSE(timer.IsRunning());
  timer.Stop();
  timer.SetOwner(owner, 1);
  EXPECT_FALSE(timer.IsRunning());
}

TEST_F(HXCocoaTimerTest, RepeatsWithItsIdUntilStopped) {
  HXCocoaTimer timer;
  timer.SetOwner(owner, 7);
  timer.Start(1, false);
  EXPECT_TRUE(timer.IsRunning());
  PumpTicks(3);
  timer.Stop();
  EXPECT_FALSE(timer.IsRunning());
  EXPECT_THAT(owner->timers, ::testing::Each(7));
  const std::size_t ticks = owner->timers.size();
  HXCocoaTimer other;
  other.SetOwner(owner, 8);
  other.Start(5, true);
  PumpTicks(ticks + 1);
  EXPECT_EQ(owner->timers.back(), 8) << "the stopped timer went on";
  EXPECT_EQ(owner->timers.size(), ticks + 1);
}

TEST_F(HXCocoaTimerTest, FiresNotBeforeItsInterval) {
  HXCocoaTimer timer;
  timer.SetOwner(owner, 1);
  const auto start = std::chrono::steady_clock::now();
  timer.Start(60, true);
  PumpTicks(1);
  EXPECT_GE(MillisecondsSince(start), 58);
}

TEST_F(HXCocoaTimerTest, FiresBeforeAPlatformTimerOfALongerInterval) {
  HXCocoaTimer timer;
  timer.SetOwner(owner, 1);
  timer.Start(60, true);
  // Started last and due last: it fires last, however late both are.
  bool ended = false;
  bool wasRunning = true;
  Later(
      [&] {
        wasRunning = timer.IsRunning();
        ended = true;
      },
      0.09);
  PumpUntil([&] { return ended; }, "the platform's timer");
  EXPECT_FALSE(wasRunning);
}

TEST_F(HXCocoaTimerTest, OneShotFiresOnce) {
  HXCocoaTimer once;
  once.SetOwner(owner, 1);
  once.Start(1, true);
  HXCocoaTimer repeating;
  repeating.SetOwner(owner, 2);
  repeating.Start(3, false);
  PumpTicks(6);
  EXPECT_FALSE(once.IsRunning());
  EXPECT_EQ(std::count(owner->timers.begin(), owner->timers.end(), 1), 1);
}

TEST_F(HXCocoaTimerTest, OneShotIsStoppedBeforeItsOwnerHearsAndMayBeStartedAgain) {
  HXCocoaTimer timer;
  timer.SetOwner(owner, 1);
  bool ranInside = true;
  owner->onTimer = [&] {
    ranInside = timer.IsRunning();
    if (owner->timers.size() < 3) timer.Start(1, true);
  };
  timer.Start(1, true);
  PumpTicks(3);
  EXPECT_FALSE(ranInside);
  EXPECT_FALSE(timer.IsRunning());
}

TEST_F(HXCocoaTimerTest, OneShotMayBecomeRepeatingOnRestart) {
  HXCocoaTimer timer;
  timer.SetOwner(owner, 1);
  owner->onTimer = [&] { timer.Start(1, false); };
  timer.Start(1, true);
  PumpTicks(4);
  EXPECT_TRUE(timer.IsRunning());
}

TEST_F(HXCocoaTimerTest, RepeatingTimerMayStopInItsTick) {
  HXCocoaTimer timer;
  timer.SetOwner(owner, 1);
  owner->onTimer = [&] { timer.Stop(); };
  timer.Start(1, false);
  PumpTicks(1);
  EXPECT_FALSE(timer.IsRunning());
}

TEST_F(HXCocoaTimerTest, StartWhileRunningKeepsTheInterval) {
  HXCocoaTimer timer;
  timer.SetOwner(owner, 1);
  timer.Start(1, false);
  timer.Start(kNever, true);
  PumpTicks(3);
  EXPECT_TRUE(timer.IsRunning());

  timer.Stop();
  owner->timers.clear();
  timer.Start(kNever, false);
  timer.Start(1, false);
  HXCocoaTimer other;
  other.SetOwner(owner, 2);
  other.Start(20, true);
  PumpTicks(1);
  EXPECT_THAT(owner->timers, ElementsAre(2));
}

TEST_F(HXCocoaTimerTest, IntervalOfZeroFiresAtOnce) {
  HXCocoaTimer timer;
  timer.SetOwner(owner, 1);
  timer.Start(0, false);
  HXCocoaTimer other;
  other.SetOwner(owner, 2);
  other.Start(200, true);
  PumpTicks(3);
  EXPECT_EQ(owner->timers.front(), 1);
}

TEST_F(HXCocoaTimerTest, TimersOfOneOwnerAreToldApartByTheirIds) {
  HXCocoaTimer first;
  HXCocoaTimer second;
  first.SetOwner(owner, 1);
  second.SetOwner(owner, 2);
  first.Start(1, true);
  second.Start(30, true);
  PumpTicks(2);
  EXPECT_THAT(owner->timers, ElementsAre(1, 2));
}

TEST_F(HXCocoaTimerTest, DestructorStops) {
  auto timer = std::make_unique<HXCocoaTimer>();
  timer->SetOwner(owner, 1);
  timer->Start(1, false);
  timer.reset();
  HXCocoaTimer other;
  other.SetOwner(owner, 2);
  other.Start(20, true);
  PumpTicks(1);
  EXPECT_THAT(owner->timers, ElementsAre(2));
}

TEST_F(HXCocoaTimerTest, OwnerMayDeleteTimerAndItselfInTheTick) {
  for (const bool once : {true, false}) {
    auto* widget = new RecordingPanel(window.get(), {0, 0}, {10, 10});
    auto timer = std::make_unique<HXCocoaTimer>();
    timer->SetOwner(widget, 1);
    widget->onTimer = [&timer, widget] {
      timer.reset();
      delete widget;
    };
    timer->Start(1, once);
    PumpUntil([&] { return timer == nullptr; }, "the timer to fire");
    EXPECT_EQ(window->GetChildren().size(), 1U);
  }
}

TEST_F(HXCocoaTimerTest, FiresInTheDefaultModeOnly) {
  HXCocoaTimer timer;
  timer.SetOwner(owner, 1);
  timer.Start(1, false);
  NSRunLoop* loop = [NSRunLoop currentRunLoop];
  const auto start = std::chrono::steady_clock::now();
  while (MillisecondsSince(start) < 20) {
    [loop runMode:NSModalPanelRunLoopMode beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.005]];
  }
  EXPECT_THAT(owner->timers, IsEmpty());
  PumpTicks(1);
}

TEST_F(HXCocoaTimerTest, StartWithoutAnOwnerStopsTheProgram) {
  HXCocoaTimer timer;
  EXPECT_DEATH(timer.Start(10, false),
               "\\(win\\), function Start, file Src/HXUI/Cocoa/HXCocoaTimer, line 33");
}

}  // namespace
