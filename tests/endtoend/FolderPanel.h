#pragma once

#include <gtest/gtest.h>

#include "tests/endtoend/Desktop.h"
#include "tests/endtoend/Pointer.h"

/// GNUstep's own panel in which the custom folder is chosen. It opens in the
/// working directory of the installer; its right column lists the folders there.
class FolderPanel {
 public:
  FolderPanel(const Desktop& desktop, Pointer& pointer) : desktop(desktop), pointer(pointer) {}

  testing::AssertionResult IsUp() const;
  testing::AssertionResult IsGone() const;
  /// Waits until the panel looks different from `before`.
  testing::AssertionResult Changes(const Picture& before) const;
  Picture Look() const;

  /// Clicks the folder in this row of the right column.
  void ClickRow(int row) const;
  void ClickCancel() const;
  void ClickChoose() const;

 private:
  void ClickAt(int x, int y) const;

  const Desktop& desktop;
  Pointer& pointer;
};
