#pragma once

#include <string>

#include "Src/HXUI/HXPanel.h"

/// Shows the bound values of the present view, one a line. Owned by its parent.
class ValuesPanel : public HXPanel {
 public:
  ValuesPanel(HXObject* parent, HXPoint position, HXSize size);

  /// UTF-8 with line ends; redraws when it differs from what is shown.
  void SetText(const std::string& newText);

  void Draw() override;

 private:
  std::string text;
};
