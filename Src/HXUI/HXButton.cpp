#include "Src/HXUI/HXButton.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"

namespace {

constexpr HXColor kVeil{0, 0, 0, 100};
constexpr HXColor kNoFill{0, 0, 0, 0};
constexpr HXColor kFrame{255, 255, 255, 255};

}  // namespace

HXButton::HXButton(HXObject* parent, HXPoint position, HXSize size, const unsigned char* bytes,
                   std::uint32_t length, bool hasTwoFaces)
    : HXPanel(parent, position, size), image(bytes, length), twoFaces(hasTwoFaces) {
  HXSize faceSize = image.GetPixelSize();
  if (twoFaces) faceSize.width /= 2;
  HXPanel::SetSize(faceSize);
  HXPanel::SetMinSize(faceSize);
}

void HXButton::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  const HXRect all{0, 0, size.width, size.height};
  const std::int32_t left = twoFaces && face == 1 ? size.width : 0;
  dc.DrawBitmapPart(image, {0, 0}, {left, 0, size.width, size.height});
  if (dimmed) {
    dc.SetFillColor(kVeil);
    dc.DrawRect(all);
  } else if (hover) {
    dc.SetFillColor(kNoFill);
    dc.SetStroke(kFrame, 1);
    dc.DrawRect(all);
  }
}

void HXButton::OnMouse(MouseKind kind) {
  if (kind != kMouseEntered && kind != kMouseExited) return;
  hover = kind == kMouseEntered;
  Redraw();
}
