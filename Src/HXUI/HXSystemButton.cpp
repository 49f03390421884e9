#include "Src/HXUI/HXSystemButton.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"

namespace {

constexpr const char* kFontName = "Tahoma";
constexpr HXColor kFace{44, 45, 49, 255};
constexpr HXColor kHoveredFace{61, 63, 67, 255};
constexpr HXColor kDisabledFace{30, 30, 31, 255};
constexpr HXColor kDisabledLabel{134, 134, 134, 255};

}  // namespace

HXSystemButton::HXSystemButton(HXObject* parent, HXPoint position, HXSize size,
                               const std::string& text)
    : HXPanel(parent, position, size), label(text) {}

void HXSystemButton::SetLabel(const std::string& text) { label = text; }

void HXSystemButton::SetLabelFont(std::uint8_t style, std::int32_t size) {
  fontFlags = style;
  fontSize = size;
}

void HXSystemButton::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  const bool usable = IsEnabled();
  // Being pressed has no look of its own.
  const HXColor enabledFace = hover ? kHoveredFace : kFace;
  dc.SetFillColor(usable ? enabledFace : kDisabledFace);
  dc.DrawRect({0, 0, size.width, size.height});
  dc.SetFont(kFontName, fontFlags, static_cast<float>(fontSize));
  dc.SetTextColor(usable ? labelColor : kDisabledLabel);
  // One pixel more each way moves the label's centre by half a pixel.
  dc.DrawText(label, {0, 0, size.width + 1, size.height + 1},
              HXCocoaDC::kCentre | HXCocoaDC::kCentreVertically);
}

void HXSystemButton::OnMouse(MouseKind kind) {
  switch (kind) {
    case kLeftDown:
    case kLeftDouble:
      pressed = true;
      break;
    case kLeftUp:
      pressed = false;
      break;
    case kMouseEntered:
      hover = true;
      break;
    case kMouseExited:
      hover = false;
      pressed = false;
      break;
    default:
      return;
  }
  Redraw();
}
