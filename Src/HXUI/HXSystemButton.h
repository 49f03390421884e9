#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/HXPanel.h"

/// The ordinary text button: a flat dark rectangle with a centred label. It
/// shows hovering and being disabled, nothing else. Owned by its parent.
///
/// The owner binds a notification hook and takes `kLeftUp` as the click; a
/// disabled button notifies as well, so the owner ignores what makes no sense.
class HXSystemButton : public HXPanel {
 public:
  /// Position in the parent's coordinates and size in pixels; the label is UTF-8.
  HXSystemButton(HXObject* parent, HXPoint position, HXSize size, const std::string& text);

  /// Replaces the label; none of the setters redraws.
  void SetLabel(const std::string& text);
  const std::string& GetLabel() const { return label; }
  /// Style as `HXCocoaDC::FontStyle`s (at first bold), size in points (at first 11).
  void SetLabelFont(std::uint8_t style, std::int32_t size);
  /// While enabled; a disabled button has a grey label.
  void SetLabelColor(HXColor newColor) { labelColor = newColor; }
  /// The left button went down here and has not come up or left since.
  bool IsPressed() const { return pressed; }

  void Draw() override;
  void OnMouse(MouseKind kind) override;

 private:
  bool hover = false;
  bool pressed = false;
  std::uint8_t fontFlags = 1;
  std::int32_t fontSize = 11;
  HXColor labelColor{209, 211, 212, 255};
  std::string label;
};
