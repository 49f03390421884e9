#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/endtoend/Desktop.h"
#include "tests/endtoend/Picture.h"
#include "tests/endtoend/Pointer.h"

/// One of the wizard's messages and questions, found by its title.
class MessageBox {
 public:
  enum class Button { kOk, kYes, kNo };

  static constexpr const char* kQuestion = "Exit Installer";
  static constexpr const char* kNothingChosen = "Unable to continue";
  static constexpr const char* kError = "Unexpected error";

  MessageBox(const Desktop& desktop, Pointer& pointer, std::string title)
      : desktop(desktop), pointer(pointer), title(std::move(title)) {}

  /// Waits until it is there, the only one of its kind, drawn, and the active window.
  testing::AssertionResult IsUp() const;
  /// Waits until no such window is left.
  testing::AssertionResult IsGone() const;
  void Click(Button button) const;
  void PressCloseButton() const;

 private:
  Picture Look() const;
  static Area AreaOf(Button button, const Picture& picture);

  const Desktop& desktop;
  Pointer& pointer;
  std::string title;
};
