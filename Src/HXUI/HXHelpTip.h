#pragma once

#include <string>

#include "Src/HXUI/HXWindow.h"

/// A small borderless window above all others that shows a wrapped text, under
/// a bold title when there is one. Belongs to whoever constructs it, who hides
/// it again with `SetVisible`.
class HXHelpTip : public HXWindow {
 public:
  /// Hidden until `Show`. `owner` may be null.
  explicit HXHelpTip(HXWindow* owner);

  /// Sizes the tip for the texts (UTF-8, the title may be empty) and shows it
  /// so that it stands on `point`, without taking the keyboard. The point
  /// counts from the top left corner of the first screen, y downward.
  void Show(HXPoint point, const std::string& newTitle, const std::string& newText);

  void Draw() override;

 private:
  HXSize SizeForTexts() const;

  std::string title;
  std::string text;
};
