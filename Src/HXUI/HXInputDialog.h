#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/HXTextBoxOwner.h"
#include "Src/HXUI/HXWindow.h"

/// A modal prompt for one line of text, with "OK" and "Cancel". Constructed by
/// its caller, usually on the stack, run with `RunModal` and destroyed.
///
/// `RunModal` gives 0 for "OK" and 1 for "Cancel" or the close button.
class HXInputDialog : public HXWindow, public HXTextBoxOwner {
 public:
  /// `owner` is disabled while the dialog runs; may be null. Texts are UTF-8;
  /// `initialText` may be null and is selected at first. At most 24 characters
  /// can be typed.
  HXInputDialog(HXWindow* owner, const std::string& title, const char* initialText);

  /// What stood in the box when a button or key ended the dialog, also when it
  /// was cancelled; empty before and after the close button.
  const std::string& GetValue() const { return value; }

  void Draw() override;
  /// Return in the box is "OK", Escape is "Cancel".
  bool OnTextBoxKeyDown(HXTextBox& box, int key) override;

 private:
  void AddButton(HXPoint position, const char* label, std::uint32_t answer);
  void OnButton(std::uint32_t eventCode);
  void EndWith(std::uint32_t answer);

  HXTextBox* textBox;
  std::string value;
};
