#include "examples/gallery/PointerView.h"

#include <array>

#include "Src/HXUI/Cocoa/CursorShape.h"
#include "Src/HXUI/HXSystemButton.h"
#include "examples/gallery/DragPanel.h"
#include "examples/gallery/DropPanel.h"

namespace {

constexpr std::uint32_t kRepeatInterval = 200;
constexpr std::uint32_t kOnceInterval = 1000;

}  // namespace

PointerView::PointerView(HXObject* parentObject, EventLog& log) : GalleryView(parentObject, log) {
  const auto write = [this](const std::string& line) { Log(line); };
  AddHeading({20, 14}, "Capturing the mouse");
  dragPanel = new DragPanel(this, {20, 40}, {220, 160}, write);
  AddHeading({270, 14}, "Dropping files");
  dropPanel = new DropPanel(this, {270, 40}, {220, 160}, write);
  BuildCursors();
  BuildTimers();
}

void PointerView::BuildCursors() {
  AddHeading({520, 14}, "Cursor shapes");
  const std::array<const char*, 7> names{"0  Arrow",        "1  Unchanged",   "2  Left-right",
                                         "3  Up-down",      "4  Closed hand", "5  I-beam",
                                         "6  Pointing hand"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    auto* button = new HXSystemButton(this, {520, static_cast<std::int32_t>(40 + 28 * i)},
                                      {140, 24}, names[i]);
    button->SetHook(this, &PointerView::OnCursor, static_cast<std::uint32_t>(i));
  }
}

void PointerView::BuildTimers() {
  AddHeading({20, 224}, "HXCocoaTimer");
  repeatButton = new HXSystemButton(this, {20, 250}, {110, 26}, "Start");
  repeatButton->SetHook(this, &PointerView::OnRepeat, 0);
  AddCaption({145, 256}, "Ticks five times a second");
  auto* once = new HXSystemButton(this, {20, 286}, {110, 26}, "In a second");
  once->SetHook(this, &PointerView::OnOnce, 0);
  AddCaption({145, 292}, "Ticks once");
  // The id tells the owner's timers apart in OnTimer.
  repeatTimer.SetOwner(this, kRepeating);
  onceTimer.SetOwner(this, kOnce);
}

void PointerView::OnCursor(std::uint32_t eventCode) {
  if (eventCode != kLeftUp) return;
  shape = static_cast<int>(GetSenderId());
  SetCursorShape(shape);
}

void PointerView::OnRepeat(std::uint32_t eventCode) {
  if (eventCode != kLeftUp) return;
  if (repeatTimer.IsRunning()) {
    repeatTimer.Stop();
  } else {
    repeatTimer.Start(kRepeatInterval, false);
  }
  repeatButton->SetLabel(repeatTimer.IsRunning() ? "Stop" : "Start");
  repeatButton->Redraw();
}

void PointerView::OnOnce(std::uint32_t eventCode) {
  if (eventCode == kLeftUp) onceTimer.Start(kOnceInterval, true);
}

void PointerView::OnTimer(int timerId) {
  if (timerId == kRepeating) ++ticks;
  if (timerId == kOnce) Log("One-shot timer: ticked");
}

std::string PointerView::Values() const {
  const HXPoint at = dragPanel->GetHandle();
  return Line("handle", std::to_string(at.x) + ", " + std::to_string(at.y)) +
         Line("dropped", dropPanel->GetPath()) + Line("cursor shape", shape) + Line("ticks", ticks);
}
