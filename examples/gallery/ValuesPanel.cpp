#include "examples/gallery/ValuesPanel.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "examples/gallery/GalleryStyle.h"

namespace {

constexpr std::int32_t kHeadingHeight = 28;
constexpr std::int32_t kMargin = 8;

}  // namespace

ValuesPanel::ValuesPanel(HXObject* parentObject, HXPoint position, HXSize size)
    : HXPanel(parentObject, position, size) {
  SetColor(GalleryStyle::kPanel);
}

void ValuesPanel::SetText(const std::string& newText) {
  if (newText == text) return;
  text = newText;
  Redraw();
}

void ValuesPanel::Draw() {
  // The panel's own colour first, as every panel does by itself.
  HXPanel::Draw();
  // A drawing context lives for one Draw only, on the stack.
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetTextColor(GalleryStyle::kAccent);
  dc.SetFont(GalleryStyle::kFont, HXCocoaDC::kBold, GalleryStyle::kTextSize);
  dc.DrawText("Bound values", {kMargin, kMargin, 0, 0}, 0);
  dc.SetTextColor(GalleryStyle::kText);
  dc.SetFont(GalleryStyle::kFont, 0, GalleryStyle::kTextSize);
  dc.DrawText(text,
              {kMargin, kHeadingHeight, size.width - 2 * kMargin, size.height - kHeadingHeight}, 0);
}
