#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>
#include <functional>
#include <vector>

#include "Src/HXUI/Cocoa/HXCocoaTimer.h"
#include "Src/HXUI/HXScrollBar.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"

inline constexpr std::int32_t kHeight = 240;
inline constexpr std::int32_t kWidth = 17;
// What the bar's own timers tell it.
inline constexpr int kRepeatTimer = 1;
inline constexpr int kStepTimer = 2;
inline constexpr HXColor kBlack{0, 0, 0, 255};
inline constexpr HXColor kTrack{17, 18, 20, 255};
inline constexpr HXColor kPart{37, 38, 42, 255};
inline constexpr HXColor kHovered{46, 48, 51, 255};
inline constexpr HXColor kGrip{80, 80, 80, 255};
inline constexpr HXColor kTriangle{222, 222, 222, 255};

/// Remembers how far each `SetPosition` moved it, and counts its drawings.
class ScrolledContent : public HXPanel {
 public:
  using HXPanel::HXPanel;
  void SetPosition(HXPoint position) override {
    steps.push_back(position.y - GetPosition().y);
    HXPanel::SetPosition(position);
  }
  void Draw() override {
    ++draws;
    HXPanel::Draw();
  }
  std::vector<std::int32_t> steps;
  int draws = 0;
};

/// Counts the ticks of a timer of its own.
class TickCounter : public RecordingOwner {
 public:
  TickCounter() {
    timer.SetOwner(this, 1);
    timer.Start(20, false);
  }
  void OnTimer(int) override { ++ticks; }
  int ticks = 0;

 private:
  HXCocoaTimer timer;
};

/// A scroll bar of 17 by 240 beside its content, both in one panel.
class ScrollBarFixture : public ToolkitFixture {
 protected:
  ScrollBarFixture() : area(new HXPanel(window.get(), {0, 0}, {100, kHeight})) {}

  void Make(std::int32_t contentHeight, std::int32_t y = 0, std::int32_t x = 0) {
    content = new ScrolledContent(area, {x, y}, {83, contentHeight});
    bar = new HXScrollBar(area, content, {83, 0}, false);
  }
  HXPoint ContentAt() const { return content->GetPosition(); }
  void WaitForContentAt(std::int32_t y) {
    PumpUntil([&] { return ContentAt().y == y; }, "the content to arrive");
  }
  /// Long enough for every timer of the bar to have ticked if it still ran.
  void WaitForAnyTimer() {
    TickCounter clock;
    PumpUntil([&] { return clock.ticks >= 5; }, "the clock");
  }
  /// Lets timers run without delivering the events of the real pointer, which
  /// may still be on its way from where the last test has left it.
  static void RunTimersUntil(const std::function<bool()>& condition) {
    NSDate* end = [NSDate dateWithTimeIntervalSinceNow:30];
    while (!condition()) {
      ASSERT_GT([end timeIntervalSinceNow], 0) << "waited in vain for a timer";
      [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                               beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
    }
  }
  /// Rows of the thumb in the column that only the thumb's ends and face touch.
  HXRect ThumbRows(const DrawnPixels& pixels) {
    return pixels.InkBounds({2, 0, 1, kHeight}, kTrack);
  }

  HXPanel* area;
  ScrolledContent* content = nullptr;
  HXScrollBar* bar = nullptr;
};
