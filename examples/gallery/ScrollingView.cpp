#include "examples/gallery/ScrollingView.h"

#include "Src/HXUI/HXBitmapDisplay.h"
#include "Src/HXUI/HXScrollBar.h"
#include "Src/HXUI/HXTextPanel.h"
#include "examples/gallery/GalleryStyle.h"
#include "resources/Pictures.h"

namespace {

constexpr HXSize kColumnSize{200, 330};
/// To the left of the text.
constexpr std::int32_t kInset = 4;
constexpr HXSize kFrameSize{kColumnSize.width - kInset, kColumnSize.height};
constexpr std::int32_t kBarWidth = 17;
constexpr std::int32_t kArrowSize = 17;

bool IsInside(HXPoint point, HXSize size) {
  return point.x >= 0 && point.y >= 0 && point.x < size.width && point.y < size.height;
}

}  // namespace

ScrollingView::ScrollingView(HXObject* parentObject, EventLog& log)
    : GalleryView(parentObject, log), picture(kBannerPng.bytes, kBannerPng.length) {
  AddHeading({20, 14}, "HXScrollBar, HXTextPanel");
  plain = MakeColumn({20, 40}, 60);
  AddHeading({250, 14}, "With arrows");
  arrows = MakeColumn({250, 40}, 30);
  arrows.bar->SetArrowSize(kArrowSize);
  BuildPictures();
  // Wheel turns reach nobody but the event sinks.
  AddEventSink(this);
}

ScrollingView::Column ScrollingView::MakeColumn(HXPoint position, int lineCount) {
  Column column{};
  auto* border = new HXPanel(this, position, kColumnSize);
  border->SetColor(GalleryStyle::kPanel);
  // The frame cuts off what is scrolled out of it. A bar keeps what it scrolls
  // at the left edge of the frame, so the inset is the frame's own.
  column.frame = new HXPanel(border, {kInset, 0}, kFrameSize);
  column.frame->SetColor(GalleryStyle::kPanel);
  auto* text = new HXTextPanel(column.frame, {0, 0}, {kFrameSize.width - kBarWidth - kInset, 20});
  text->SetColor(GalleryStyle::kPanel);
  std::string lines;
  for (int i = 1; i <= lineCount; ++i) lines += "Line " + std::to_string(i) + "\n";
  text->SetText(lines);
  column.content = text;
  column.bar = new HXScrollBar(column.frame, text, {kFrameSize.width - kBarWidth, 0}, true);
  return column;
}

void ScrollingView::BuildPictures() {
  AddHeading({480, 14}, "HXBitmapDisplay");
  // The displays show one bitmap, which this view keeps for them.
  new HXBitmapDisplay(this, &picture, {480, 40}, {160, 310});
  new HXBitmapDisplay(this, &picture, {660, 40}, {80, 155});
  new HXBitmapDisplay(this, &picture, {660, 215}, {80, 60});
}

void ScrollingView::OnEventSink(HXEventSinkRecord& record) {
  // A sink hears of everything, also while its view is hidden.
  if (record.kind != kWheel || !IsVisible()) return;
  for (const Column& column : {plain, arrows}) {
    if (!IsInside(column.frame->GetMousePosition(false), kFrameSize)) continue;
    Log("Wheel: " + std::to_string(record.parameter));
    column.bar->ScrollBy(record.parameter);
  }
}

std::string ScrollingView::Values() const {
  return Line("plain content at", plain.content->GetPosition().y) +
         Line("content with arrows at", arrows.content->GetPosition().y);
}
