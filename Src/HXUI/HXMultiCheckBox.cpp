#include "Src/HXUI/HXMultiCheckBox.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXCheckBox.h"

namespace {

constexpr HXSize kSize{100, 14};
constexpr std::int32_t kPitch = 36;
constexpr std::int32_t kCaptionWidth = 12;
constexpr std::int32_t kCaptionTop = 1;
constexpr std::array<const char*, 3> kCaptions{"X", "Y", "Z"};
constexpr const char* kFontName = "Verdana";
constexpr float kFontSize = 10;
constexpr HXColor kBackground{30, 31, 34, 255};
constexpr HXColor kBoundCaption{216, 217, 217, 255};
constexpr HXColor kUnboundCaption{131, 132, 133, 255};

std::int32_t ColumnOf(std::uint32_t index) { return kPitch * static_cast<std::int32_t>(index); }

}  // namespace

HXMultiCheckBox::HXMultiCheckBox(HXObject* parent, HXPoint position)
    : HXPanelControl(parent, position, kSize) {
  HXPanelControl::SetColor(kBackground);
  for (std::uint32_t i = 0; i < kCount; ++i) {
    boxes[i] = new HXCheckBox(this, {kCaptionWidth + ColumnOf(i), 0}, nullptr, nullptr);
    boxes[i]->SetChangeHandler(&OnBoxChanged, this, i);
  }
}

void HXMultiCheckBox::SetValues(std::uint8_t* threeValues) {
  values = threeValues;
  for (std::uint32_t i = 0; i < kCount; ++i) {
    boxes[i]->SetValue(values == nullptr ? nullptr : values + i);
    boxes[i]->Redraw();
  }
}

void HXMultiCheckBox::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(GetColor());
  dc.DrawRect({0, 0, size.width, size.height});
  dc.SetFont(kFontName, 0, kFontSize);
  dc.SetTextColor(values == nullptr ? kUnboundCaption : kBoundCaption);
  for (std::uint32_t i = 0; i < kCount; ++i) {
    dc.DrawText(kCaptions[i], {ColumnOf(i), kCaptionTop, 0, 0}, 0);
  }
}

void HXMultiCheckBox::OnBoxChanged(HXObject* target, std::uint32_t /*index*/, HXControl* /*sender*/,
                                   int notification) {
  // Nothing may follow: the owner may delete this widget and the box with it.
  static_cast<HXMultiCheckBox*>(target)->NotifyOwner(notification);
}
