#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "Src/HXUI/HXPanelControl.h"

class HXCocoaDC;

/// A box with a check mark and an optional label on its right, which edits a
/// byte of its owner in place: zero is unchecked. A click anywhere on the
/// widget flips it; the owner hears `kChangeBegins` with the old value still in
/// place, then `kChangeDone` with the new one. Owned by its parent.
class HXCheckBox : public HXPanelControl {
 public:
  /// `boundValue` may be null, which makes the box inert, and otherwise must
  /// outlive it. 200 by 14 pixels with a label (UTF-8), 14 by 14 when that is
  /// null or empty.
  HXCheckBox(HXObject* parent, HXPoint position, std::uint8_t* boundValue, const char* text);

  /// Binds another byte, or none. Does not redraw.
  void SetValue(std::uint8_t* boundValue) { value = boundValue; }

  void Draw() override;
  void OnMouse(MouseKind kind) override;

 private:
  void Flip();
  void DrawLabel(HXCocoaDC& dc);

  std::uint8_t* value;
  bool hover = false;
  std::string label;
  std::string fontName = "Verdana";
  float fontSize = 11;
  HXBitmap sprite;
};
