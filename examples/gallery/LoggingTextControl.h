#pragma once

#include <functional>
#include <string>

#include "Src/HXUI/HXTextControl.h"

/// A text control that writes down what it hears: its keys and the coming and
/// going of the keyboard, and knows where Tab goes. Owned by its parent.
class LoggingTextControl : public HXTextControl {
 public:
  /// `writeLine` is called with lines that begin with `controlName`.
  LoggingTextControl(HXObject* parent, HXPoint position, HXSize size, const std::string& text,
                     std::uint32_t flags, std::string controlName,
                     std::function<void(const std::string&)> writeLine);

  /// Puts this field behind `field` in the order of Tab. Both must live as long
  /// as one of them has the keyboard.
  void Follow(LoggingTextControl& field);

  void OnFocusGained() override;
  void OnFocusLost() override;
  bool OnKeyDown(int key) override;

 private:
  std::string name;
  std::function<void(const std::string&)> write;
  LoggingTextControl* next = nullptr;
  LoggingTextControl* previous = nullptr;
};
