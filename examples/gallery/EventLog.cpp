#include "examples/gallery/EventLog.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXSystemButton.h"
#include "examples/gallery/GalleryStyle.h"

namespace {

/// More than fit into the largest panel.
constexpr std::size_t kMaxLines = 100;
constexpr std::int32_t kLineHeight = 15;
constexpr std::int32_t kHeadingHeight = 28;
constexpr std::int32_t kMargin = 8;
constexpr HXSize kButtonSize{50, 18};

}  // namespace

EventLog::EventLog(HXObject* parentObject, HXPoint position, HXSize size)
    : HXPanel(parentObject, position, size) {
  SetColor(GalleryStyle::kPanel);
  auto* clear = new HXSystemButton(this, {size.width - kButtonSize.width - kMargin, kMargin - 2},
                                   kButtonSize, "Clear");
  clear->SetHook(this, &EventLog::OnClear, 0);
  // Stays at the right edge when the window grows.
  AddAnchor(clear, kRight, kMargin);
}

void EventLog::Add(const std::string& line) {
  lines.push_back(std::to_string(++count) + "  " + line);
  if (lines.size() > kMaxLines) lines.pop_front();
  Redraw();
}

void EventLog::OnClear(std::uint32_t eventCode) {
  // A hook hears of every mouse event; the release is the click.
  if (eventCode != kLeftUp) return;
  lines.clear();
  count = 0;
  Redraw();
}

void EventLog::Draw() {
  HXPanel::Draw();
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetTextColor(GalleryStyle::kAccent);
  dc.SetFont(GalleryStyle::kFont, HXCocoaDC::kBold, GalleryStyle::kTextSize);
  dc.DrawText("Notifications", {kMargin, kMargin, 0, 0}, 0);

  dc.SetClipRect({0, kHeadingHeight, size.width - kMargin, size.height - kHeadingHeight});
  dc.SetTextColor(GalleryStyle::kText);
  dc.SetFont(GalleryStyle::kFont, 0, GalleryStyle::kTextSize);
  const std::int32_t room = (size.height - kHeadingHeight - kMargin) / kLineHeight;
  const auto shown = static_cast<std::size_t>(room < 0 ? 0 : room);
  const std::size_t first = lines.size() > shown ? lines.size() - shown : 0;
  std::int32_t y = kHeadingHeight;
  for (std::size_t i = first; i < lines.size(); ++i, y += kLineHeight) {
    dc.DrawText(lines[i], {kMargin, y, 0, 0}, 0);
  }
}
