#pragma once

#include <string>

#include "Src/HXUI/HXPanel.h"

/// Shows a block of wrapped text on the widget's colour and fits its own height
/// to the text. Reacts to nothing. Owned by its parent.
class HXTextPanel : public HXPanel {
 public:
  /// Empty at first.
  HXTextPanel(HXObject* parent, HXPoint position, HXSize size);

  /// UTF-8. Keeps the width, takes the height that the text needs and redraws.
  void SetText(const std::string& newText);
  const std::string& GetText() const { return text; }

  void Draw() override;

 private:
  std::string text;
};
