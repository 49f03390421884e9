#include "Src/HXUI/HXHelpTip.h"

#include <algorithm>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/Cocoa/NativeWindow.h"

namespace {

constexpr HXSize kFirstSize{330, 50};
constexpr HXSize kMeasureBounds{300, 500};
constexpr std::int32_t kTextWidth = 300;

constexpr const char* kTitleFont = "Tahoma";
constexpr const char* kTextFont = "Verdana";
constexpr float kFontSize = 11;
constexpr HXColor kBackground{27, 28, 28, 255};
constexpr HXColor kOuterFrame{74, 79, 83, 255};
constexpr HXColor kInnerFrame{0, 0, 0, 255};
constexpr HXColor kNoFill{0, 0, 0, 0};
constexpr HXColor kTitleColor{255, 255, 255, 255};
constexpr HXColor kTextColor{167, 167, 167, 255};

}  // namespace

HXHelpTip::HXHelpTip(HXWindow* owner)
    : HXWindow(owner, {}, kFirstSize, "", kBorderless | kFloating) {}

void HXHelpTip::Show(HXPoint point, const std::string& newTitle, const std::string& newText) {
  title = newTitle;
  text = newText;
  SetVisible(false);
  const HXSize size = SizeForTexts();
  // A window does not get smaller than its minimum, which is the size it was built with.
  SetMinSize(size);
  SetSize(size);
  // Window positions count from the bottom of the screen to the bottom of the window.
  SetPosition({point.x, NativeWindow::GetScreenHeight() - point.y});
  HXWindow::Show();
  Redraw();
}

HXSize HXHelpTip::SizeForTexts() const {
  HXCocoaDC dc(nullptr);
  dc.SetFont(kTextFont, 0, kFontSize);
  const HXSize titleSize = dc.MeasureText(title, kMeasureBounds, 0);
  const HXSize textSize = dc.MeasureText(text, kMeasureBounds, 0);
  if (title.empty())
    return {std::max(textSize.width + 10, titleSize.width + 30), textSize.height + 10};
  const std::int32_t margin = text.empty() ? 35 : 40;
  return {std::max(textSize.width, titleSize.width) + 30, textSize.height + margin};
}

void HXHelpTip::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(kBackground);
  dc.SetStroke(kOuterFrame, 1);
  dc.DrawRect({0, 0, size.width, size.height});
  dc.SetFillColor(kNoFill);
  dc.SetStroke(kInnerFrame, 1);
  dc.DrawRect({1, 1, size.width - 2, size.height - 2});
  if (!title.empty()) {
    dc.SetFont(kTitleFont, HXCocoaDC::kBold, kFontSize);
    dc.SetTextColor(kTitleColor);
    dc.DrawText(title, {15, 10, 0, 0}, 0);
  }
  const HXRect withTitle{15, 28, kTextWidth, size.height};
  const HXRect withoutTitle{5, 5, kTextWidth, size.height};
  dc.SetFont(kTextFont, 0, kFontSize);
  dc.SetTextColor(kTextColor);
  dc.DrawText(text, title.empty() ? withoutTitle : withTitle, 0);
}
