#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "Src/HXUI/HXComboBoxItem.h"
#include "Src/HXUI/HXPanelControl.h"

class HXCocoaDC;

/// A field that shows the text of the chosen item and opens a popup menu of all
/// items on a press. Edits an integer of its owner in place: the integer holds
/// the item's value, not its position. The owner hears `kChangeBegins` with the
/// old number still in place, then `kChangeDone`. Owned by its parent.
///
/// Always built 110 by 17 pixels; `SetSize` changes that afterwards.
class HXComboBox : public HXPanelControl {
 public:
  /// `boundValue` may be null, which makes the field inert, and otherwise must
  /// outlive it. The text is light on a dark face, or black on a light one.
  HXComboBox(HXObject* parent, HXPoint position, const std::vector<HXComboBoxItem>& newItems,
             std::int32_t* boundValue, bool hasLightText);
  /// Inert, without items or a face. The size is not taken.
  HXComboBox(HXObject* parent, HXPoint position, HXSize size);
  /// Items as `HXComboBoxItem::Parse` reads them. A number at or above the
  /// count of items is set to 0 first, as though it were a position.
  HXComboBox(HXObject* parent, HXPoint position, const std::string& specification,
             std::int32_t* boundValue, bool hasLightText);

  const std::vector<HXComboBoxItem>& GetItems() const { return items; }

  void Draw() override;
  void OnMouse(MouseKind kind) override;

 private:
  std::int32_t CurrentNumber() const { return value == nullptr ? 0 : *value; }
  void DrawChosenText(HXCocoaDC& dc, HXSize size);
  void ChooseFromMenu();
  /// The 1-based position of the item that the user picks, 0 for none or when
  /// this field is gone by then.
  std::int32_t RunMenu();

  bool hover = false;
  std::int32_t* value = nullptr;
  HXBitmap background;
  std::vector<HXComboBoxItem> items;
  bool lightText = false;
};
