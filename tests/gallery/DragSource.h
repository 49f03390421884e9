#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/endtoend/ChildProcess.h"
#include "tests/endtoend/Desktop.h"
#include "tests/endtoend/Pointer.h"

/// Another program from which files or a text are dragged with the pointer. Gone
/// with this object, and the drag with it.
class DragSource {
 public:
  /// What it offers.
  static std::string Files(const std::vector<std::string>& paths);
  static std::string Text(const std::string& text) { return "DRAG_TEXT=" + text; }

  /// `setup` is what a program of this display needs; the command is put in here.
  DragSource(ChildProcess::Setup setup, const Desktop& desktop, Pointer& pointer,
             const std::string& offer);

  /// Waits for the program and takes hold of what it offers.
  testing::AssertionResult PickUp();
  /// Wait for what the place under the pointer says to a drop.
  testing::AssertionResult IsAccepted() const { return Says("accepted"); }
  testing::AssertionResult IsRefused() const { return Says("refused"); }
  /// Lets go, and waits until the program has taken notice.
  testing::AssertionResult Drop();

 private:
  static ChildProcess::Setup Complete(ChildProcess::Setup setup, const std::string& offer);
  /// Waits until this is the last line that the program has written.
  testing::AssertionResult Says(const std::string& word) const;

  const Desktop& desktop;
  Pointer& pointer;
  const std::string output;
  ChildProcess program;
};
