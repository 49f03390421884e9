#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Src/HXUI/HXTypes.h"

/// Plays the user of a popup menu while the menu waits for one: moves the real
/// pointer and posts the clicks, from within the menu's own event loop. Made
/// before the menu is opened; fails the test when no menu ever closes.
class MenuDriver {
 public:
  static constexpr NSInteger kOutside = -1;

  /// Clicks the item at `item` of the menu, or with `subItem` that one of the
  /// item's submenu, or outside of the menu.
  explicit MenuDriver(NSInteger item, NSInteger subItem = kOutside);
  ~MenuDriver();
  MenuDriver(const MenuDriver&) = delete;
  MenuDriver& operator=(const MenuDriver&) = delete;

  /// What the menu showed while it was open.
  std::vector<std::string> titles;
  std::vector<bool> ticks;
  bool wasOpen = false;

  /// Run once while the menu is open, before anything is clicked.
  std::function<void()> whenOpen;

  /// When set, nothing is clicked before the first item's top left corner lies
  /// on this point in screen coordinates (y upward). The platform tells where a
  /// new window is only after some events.
  std::optional<HXPoint> expectedTopLeft;

  /// Called by the timer.
  void Tick();

 private:
  void Record(NSMenuView* view);
  bool StandsWhereExpected(NSMenuView* view) const;
  void ClickWhenReached(NSMenuView* view, NSInteger wanted);

  NSInteger index;
  NSInteger subIndex;
  bool clicked = false;
  int ticksLeft;
  NSTimer* timer;
};
