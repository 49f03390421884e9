#include "Src/HXUI/HXTextPanel.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"

namespace {

constexpr const char* kFontName = "Tahoma";
constexpr float kFontSize = 11;
constexpr HXColor kTextColor{200, 200, 200, 255};
// Measured narrower than drawn, so that the panel is never too low.
constexpr std::int32_t kMeasureMargin = 20;
constexpr std::int32_t kMeasureHeight = 1000;

}  // namespace

HXTextPanel::HXTextPanel(HXObject* parent, HXPoint position, HXSize size)
    : HXPanel(parent, position, size) {}

void HXTextPanel::SetText(const std::string& newText) {
  const std::int32_t width = GetSize().width;
  text = newText;
  HXCocoaDC dc(this);
  dc.SetFont(kFontName, 0, kFontSize);
  const HXSize needed = dc.MeasureText(text, {width - kMeasureMargin, kMeasureHeight}, 0);
  SetSize({width, needed.height});
  Redraw();
}

void HXTextPanel::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  const HXRect all{0, 0, size.width, size.height};
  dc.SetTextColor(kTextColor);
  dc.SetFillColor(GetColor());
  dc.DrawRect(all);
  dc.SetFont(kFontName, 0, kFontSize);
  dc.DrawText(text, all, 0);
}
