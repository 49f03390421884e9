#pragma once

#import <AppKit/AppKit.h>

#include <array>
#include <cstdint>
#include <functional>
#include <set>
#include <string>

#include "Src/HXUI/HXWindow.h"
#include "tests/endurance/Dice.h"
#include "tests/endurance/Trail.h"

@class MonkeyClock;

/// Somebody who does not know what the buttons are for, and presses all of them:
/// sends events to a window, to the dialogs that come up and to the menus that
/// open. What it does follows from the seed alone; what comes of it also depends
/// on timers and threads. Main thread only.
class Monkey {
 public:
  /// `window` gives the window to play with; it is asked again when that one has
  /// closed. Buttons with the labels `reluctantly` are seldom aimed at: what the
  /// platform opens for them takes as long as thousands of events.
  Monkey(std::uint64_t seed, std::set<std::string> reluctantly, std::function<HXWindow&()> window);
  ~Monkey();
  Monkey(const Monkey&) = delete;
  Monkey& operator=(const Monkey&) = delete;

  /// Sends `count` events, then puts away whatever is still open on top of the window.
  void Play(std::uint64_t count);
  std::uint64_t GetSent() const { return sent; }
  std::uint64_t GetWindowCount() const { return windowCount; }
  /// How often another window was in front, or a menu open, as the platform told.
  std::uint64_t GetInterruptions() const { return interruptions; }

  /// From the run loop, whoever is running it.
  void Tick();

 private:
  void SetClocks();
  /// False when it is time to return to the run loop.
  bool PlayOneEvent();
  void PlayWithWindow(HXWindow& window);
  /// A window that somebody runs modally, or a menu.
  void PlayWithPanel(NSWindow* panel);
  void LeaveMenu();
  void PutAway();

  HXWindow* FindWindow();
  HXObject& PickWidget(HXWindow& window);
  HXPoint PickPoint(const HXObject& widget);

  void Move(HXWindow& window, HXObject& widget);
  void PressOrRelease(HXObject& widget);
  void Click(HXWindow& window, HXObject& widget);
  void UseOtherButton(HXObject& widget);
  void TurnWheel(HXWindow& window, HXObject& widget);
  void Cross(HXObject& widget);
  void Type(HXWindow& window);
  void HandleWindow(HXWindow& window);
  void Note(const char* action, const HXObject& widget, HXPoint point, unsigned detail);

  Dice dice;
  Trail trail;
  std::set<std::string> slowButtons;
  std::function<HXWindow&()> findWindow;
  HXWindow* main = nullptr;
  /// One for each mode of the run loop.
  std::array<MonkeyClock*, 3> clocks{};
  std::uint64_t wanted = 0;
  std::uint64_t sent = 0;
  std::uint64_t windowCount = 0;
  std::uint64_t interruptions = 0;
  int depth = 0;
  bool isButtonDown = false;
  bool isRenewing = false;
};
