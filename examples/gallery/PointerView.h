#pragma once

#include <string>

#include "Src/HXUI/Cocoa/HXCocoaTimer.h"
#include "examples/gallery/GalleryView.h"

class DragPanel;
class DropPanel;
class HXSystemButton;

/// What a widget can do with the pointer: capture it, change its shape, take
/// files that are dropped; and timers.
class PointerView : public GalleryView {
 public:
  PointerView(HXObject* parent, EventLog& log);

  void OnTimer(int timerId) override;
  std::string Values() const override;

 private:
  enum Timer : int { kRepeating = 1, kOnce = 2 };

  void BuildCursors();
  void BuildTimers();
  void OnCursor(std::uint32_t eventCode);
  void OnRepeat(std::uint32_t eventCode);
  void OnOnce(std::uint32_t eventCode);

  DragPanel* dragPanel = nullptr;
  DropPanel* dropPanel = nullptr;
  HXSystemButton* repeatButton = nullptr;
  // Members of their owner: they stop before it is gone.
  HXCocoaTimer repeatTimer;
  HXCocoaTimer onceTimer;
  int ticks = 0;
  int shape = 0;
};
