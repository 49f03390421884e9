#pragma once

#include <cstdint>

#include "Src/HXUI/Cocoa/HXCocoaTimer.h"
#include "Src/HXUI/HXPanel.h"

class HXCocoaDC;

/// A vertical scroll bar that moves one content widget up and down inside their
/// common parent, whose bounds cut it. Wheel turns run as a short animation,
/// the thumb can be dragged, and arrow zones at both ends (none at first)
/// repeat while held down. Owned by its parent.
///
/// Drawing the bar works out the thumb and brings a content that has shrunk
/// back into view, so the bar follows its content with a `Redraw`.
class HXScrollBar : public HXPanel {
 public:
  /// 17 pixels wide, as tall as the parent is now. `scrolled` is not owned: it
  /// lives as long as the bar or is taken off it with `SetContent`. Null
  /// scrolls nothing. The last argument marks contents in a way that nothing
  /// looks at; it is ignored.
  HXScrollBar(HXObject* parent, HXObject* scrolled, HXPoint position, bool markContent);

  void SetContent(HXObject* scrolled) { content = scrolled; }
  /// The height of each arrow zone in pixels, 0 for none. Does not redraw.
  void SetArrowSize(std::int32_t size) { arrowSize = size; }

  /// A wheel turn of `delta` units, 120 a notch: positive, away from the user,
  /// moves the content down. A notch is 10 pixels; the first step is made at
  /// once, the others follow every 10 ms.
  void ScrollBy(std::int64_t delta);
  /// Without `ensureVisible`, `y` is where the thumb's top is to be, in the
  /// bar's coordinates. With it, `y` is a line of the content, which moves as
  /// far as it takes to see that line and the 50 pixels below it. A content at
  /// its top stays when they are in view; one that is scrolled already may move
  /// even then. Limited to the content's ends. Redraws both widgets.
  void SetThumbPosition(std::int32_t y, bool ensureVisible);

  void Draw() override;
  void OnMouse(MouseKind kind) override;
  void OnTimer(int timerId) override;

 private:
  enum Timer : std::uint32_t { kRepeatTimer = 1, kStepTimer = 2 };
  enum Direction : std::int32_t { kNone = 0, kUp = 1, kDown = 2 };

  std::int32_t ContentHeight() const;
  HXPoint ContentPosition() const;
  bool IsInThumb(std::int32_t y) const;

  void Step();
  void DragThumbTo(std::int32_t y);
  void BringIntoView(std::int32_t y);

  void Press(std::int32_t y);
  void HoldArrow(Direction direction);
  void UpdateHover(std::int32_t y);
  void ClearHover();

  void UpdateThumb();
  void DrawArrows(HXCocoaDC& dc);
  void DrawThumb(HXCocoaDC& dc);
  void KeepContentInside();

  std::int32_t trackLength = 0;
  std::int32_t thumbOffset = 0;
  std::int32_t thumbLength = 0;
  std::int32_t grabOffset = 0;
  std::int32_t arrowSize = 0;
  bool dragging = false;
  bool hoverUp = false;
  bool hoverDown = false;
  bool hoverThumb = false;
  std::int32_t pending = 0;
  Direction repeatDirection = kNone;
  HXCocoaTimer repeatTimer;
  HXCocoaTimer stepTimer;
  HXObject* content;
};
