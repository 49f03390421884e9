#include "Src/HXUI/HXComboBox.h"

#include <algorithm>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXMenu.h"
#include "Src/HXUI/HXObjectGuard.h"
#include "resources/Pictures.h"

namespace {

constexpr HXSize kFieldSize{110, 17};
constexpr const char* kFontName = "Tahoma";
constexpr float kFontSize = 10;
constexpr HXColor kLight{211, 214, 215, 255};
constexpr HXColor kUnboundLight{180, 180, 180, 255};
constexpr HXColor kBlack{0, 0, 0, 255};
constexpr HXColor kUnboundBlack{75, 75, 75, 255};
constexpr HXColor kNoFill{0, 0, 0, 0};
constexpr HXColor kFrame{255, 255, 255, 255};

HXColor TextColor(bool light, bool bound) {
  if (light) return bound ? kLight : kUnboundLight;
  return bound ? kBlack : kUnboundBlack;
}

}  // namespace

HXComboBox::HXComboBox(HXObject* parent, HXPoint position,
                       const std::vector<HXComboBoxItem>& newItems, std::int32_t* boundValue,
                       bool hasLightText)
    : HXPanelControl(parent, position, kFieldSize),
      value(boundValue),
      items(newItems),
      lightText(hasLightText) {
  const EmbeddedFile& face = lightText ? kComboLightTextPng : kComboBlackTextPng;
  background.LoadFromBytes(face.bytes, face.length);
}

HXComboBox::HXComboBox(HXObject* parent, HXPoint position, HXSize /*size*/)
    : HXPanelControl(parent, position, kFieldSize) {}

HXComboBox::HXComboBox(HXObject* parent, HXPoint position, const std::string& specification,
                       std::int32_t* boundValue, bool hasLightText)
    : HXComboBox(parent, position, HXComboBoxItem::Parse(specification), boundValue, hasLightText) {
  if (value != nullptr && *value >= static_cast<std::int32_t>(items.size())) *value = 0;
}

void HXComboBox::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.DrawBitmap(background, {0, 0}, size);
  if (hover) {
    dc.SetFillColor(kNoFill);
    dc.SetStroke(kFrame, 1);
    dc.DrawRect({0, 0, size.width, size.height});
  }
  DrawChosenText(dc, size);
}

void HXComboBox::DrawChosenText(HXCocoaDC& dc, HXSize size) {
  // Both clips together keep the text off the border and off the arrow.
  dc.SetClipRect({4, 0, size.width - 18, size.height});
  dc.SetFont(kFontName, HXCocoaDC::kBold, kFontSize);
  dc.SetTextColor(TextColor(lightText, value != nullptr));
  const std::int32_t number = CurrentNumber();
  const auto shown = std::find_if(items.begin(), items.end(),
                                  [number](const auto& item) { return item.value == number; });
  dc.SetClipRect({1, 1, size.width - 21, size.height - 4});
  if (shown == items.end()) return;
  dc.DrawText(shown->text, {0, 2, size.width - 16, size.height - 4}, HXCocoaDC::kCentre);
}

void HXComboBox::OnMouse(MouseKind kind) {
  if (value == nullptr) return;
  switch (kind) {
    case kMouseEntered:
    case kMouseExited:
      hover = kind == kMouseEntered;
      Redraw();
      break;
    case kLeftDown:
      ChooseFromMenu();
      break;
    default:
      break;
  }
}

void HXComboBox::ChooseFromMenu() {
  const std::int32_t chosen = RunMenu();
  if (chosen == 0) return;
  if (!NotifyOwner(kChangeBegins)) return;
  *value = items[static_cast<std::size_t>(chosen) - 1].value;
  if (!NotifyOwner(kChangeDone)) return;
  Redraw();
}

std::int32_t HXComboBox::RunMenu() {
  HXMenu menu(this);
  for (std::size_t i = 0; i < items.size(); ++i) {
    menu.AddItem(static_cast<std::int32_t>(i) + 1, items[i].text, items[i].value == CurrentNumber(),
                 true);
  }
  // The menu serves events of its own, which may delete this field.
  const HXObjectGuard guard(this);
  const std::int32_t chosen = menu.Popup({0, 0});
  return guard.IsAlive() ? chosen : 0;
}
