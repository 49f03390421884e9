#pragma once

#include <gtest/gtest.h>

#include "tests/endtoend/Desktop.h"
#include "tests/endtoend/Pointer.h"

/// An open menu of GNUstep's. Menus are windows without a name, so it is looked
/// for where it has to be.
class PopupMenu {
 public:
  /// `x` and `y`: its top left corner on the screen.
  PopupMenu(const Desktop& desktop, Pointer& pointer, int x, int y)
      : desktop(desktop), pointer(pointer), x(x), y(y) {}

  /// Waits until it is there with exactly this many rows.
  testing::AssertionResult IsUp(int rows) const;
  testing::AssertionResult IsGone() const;
  /// Moves to a row and waits until it is lit, as only then it can be chosen.
  testing::AssertionResult GoTo(int row);
  /// Moves to a row without expecting anything of it.
  void MoveTo(int row);

  bool IsLit(int row) const { return LookOf(row) == Look::kLit; }
  bool IsTicked(int row) const;
  /// Whether the row is written in grey.
  bool IsGrey(int row) const;
  /// The menu that one of the rows has opened beside this one.
  PopupMenu Submenu() const;

 private:
  enum class Look { kNone, kIdle, kLit };

  Look LookOf(int row) const;
  /// A part of the row, from its top left corner.
  Picture Capture(int row, Area area) const;

  const Desktop& desktop;
  Pointer& pointer;
  int x;
  int y;
};
