#pragma once

#include <functional>
#include <string>

#include "Src/HXUI/HXPanel.h"
#include "Src/HXUI/HXTextBoxOwner.h"

/// A frame around a text box that decides what the box's keys do: digits are
/// refused, Return takes the text over, Escape puts the old one back. Owned by
/// its parent.
class BoxedText : public HXPanel, public HXTextBoxOwner {
 public:
  /// `writeLine` hears of each decision.
  BoxedText(HXObject* parent, HXPoint position, HXSize size,
            std::function<void(const std::string&)> writeLine);

  void Draw() override;
  void OnTextBoxFocusLost(HXTextBox& box) override;
  bool OnTextBoxKeyDown(HXTextBox& box, int key) override;

 private:
  std::function<void(const std::string&)> write;
  std::string taken = "No digits";
};
