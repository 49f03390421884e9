#include "Src/HXUI/HXCheckBox.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "resources/Pictures.h"

namespace {

constexpr std::int32_t kBoxSize = 14;
constexpr std::int32_t kLabelledWidth = 200;
constexpr HXPoint kLabelPosition{20, 0};
constexpr HXColor kBackground{45, 45, 45, 255};
constexpr HXColor kLabelColor{200, 200, 200, 255};
constexpr HXColor kNothing{0, 0, 0, 0};
constexpr HXColor kFrame{255, 255, 255, 255};

std::string LabelOf(const char* text) { return text == nullptr ? std::string() : text; }

HXSize SizeFor(const char* text) {
  return {LabelOf(text).empty() ? kBoxSize : kLabelledWidth, kBoxSize};
}

}  // namespace

HXCheckBox::HXCheckBox(HXObject* parent, HXPoint position, std::uint8_t* boundValue,
                       const char* text)
    : HXPanelControl(parent, position, SizeFor(text)),
      value(boundValue),
      label(LabelOf(text)),
      sprite(kCheckBoxPng.bytes, kCheckBoxPng.length) {
  HXPanelControl::SetColor(kBackground);
}

void HXCheckBox::Draw() {
  HXCocoaDC dc(this);
  const bool checked = value != nullptr && *value != 0;
  dc.DrawBitmapPart(sprite, {0, 0}, {checked ? kBoxSize : 0, 0, kBoxSize, kBoxSize});
  if (hover) {
    dc.SetFillColor(kNothing);
    dc.SetStroke(kFrame, 1);
    dc.DrawRect({0, 0, kBoxSize, kBoxSize});
  }
  if (!label.empty()) DrawLabel(dc);
}

void HXCheckBox::DrawLabel(HXCocoaDC& dc) {
  dc.SetStroke(kNothing, 1);
  dc.SetFillColor(GetColor());
  // As wide as the whole widget although it starts right of the box: the view cuts it.
  dc.DrawRect({kBoxSize, 0, kLabelledWidth, kBoxSize});
  dc.SetTextColor(kLabelColor);
  dc.SetFont(fontName, 0, fontSize);
  dc.DrawText(label, {kLabelPosition.x, kLabelPosition.y, 0, 0}, 0);
}

void HXCheckBox::OnMouse(MouseKind kind) {
  if (value == nullptr) return;
  switch (kind) {
    case kLeftUp:
      Flip();
      break;
    case kMouseEntered:
    case kMouseExited:
      hover = kind == kMouseEntered;
      Redraw();
      break;
    default:
      break;
  }
}

void HXCheckBox::Flip() {
  if (!NotifyOwner(kChangeBegins)) return;
  // The owner may have unbound the box just now.
  if (value == nullptr) return;
  *value ^= 1U;
  if (!NotifyOwner(kChangeDone)) return;
  Redraw();
}
