#pragma once

#include "tests/endtoend/Desktop.h"

/// A window of another program that a person has turned to: it is active until it goes,
/// with this object.
class OtherWindow {
 public:
  explicit OtherWindow(const Desktop& desktop);
  ~OtherWindow();
  OtherWindow(const OtherWindow&) = delete;
  OtherWindow& operator=(const OtherWindow&) = delete;

 private:
  const Desktop& desktop;
  WindowId window;
};
