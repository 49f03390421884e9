#pragma once

#include <array>
#include <cstdint>

#include "examples/gallery/GalleryView.h"

/// Check boxes, combo boxes and menus.
class ChoicesView : public GalleryView {
 public:
  ChoicesView(HXObject* parent, EventLog& log);

  std::string Values() const override;

 private:
  void BuildCheckBoxes();
  void BuildComboBoxes();
  void BuildMenuButton();
  void OnMenuButton(std::uint32_t eventCode);

  std::uint8_t ticked = 1;
  std::uint8_t empty = 0;
  std::array<std::uint8_t, 3> axes{1, 0, 1};
  std::int32_t quality = 1;
  std::int32_t size = 20;
  std::int32_t colour = 3;
  std::int32_t menuChoice = 0;
};
