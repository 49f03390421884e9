#pragma once

#include <array>
#include <cstdint>

#include "Src/HXUI/HXPanelControl.h"

class HXCheckBox;

/// Three check boxes in a row under the captions X, Y and Z, which edit three
/// consecutive bytes of their owner. Reports a change as its own, without
/// saying which byte it was. Owned by its parent; owns its boxes.
class HXMultiCheckBox : public HXPanelControl {
 public:
  /// 100 by 14 pixels, inert until `SetValues`.
  HXMultiCheckBox(HXObject* parent, HXPoint position);

  /// Three bytes that must outlive this widget, or null for none. Redraws the boxes.
  void SetValues(std::uint8_t* threeValues);

  void Draw() override;

 private:
  static constexpr std::uint32_t kCount = 3;

  /// The change handler of the boxes; `target` is the widget they belong to.
  static void OnBoxChanged(HXObject* target, std::uint32_t index, HXControl* sender,
                           int notification);

  std::uint8_t* values = nullptr;
  std::array<HXCheckBox*, kCount> boxes{};
};
