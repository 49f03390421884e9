#include "Src/HXUI/HXScrollBar.h"

#include <algorithm>
#include <limits>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"

namespace {

constexpr std::int32_t kBarWidth = 17;
constexpr std::int32_t kMinThumbLength = 20;
constexpr std::int32_t kVisibleMargin = 50;

constexpr std::int64_t kDeltaPerPixel = 12;
constexpr std::int32_t kLeastStep = 10;
constexpr std::uint32_t kStepIntervalMs = 10;
constexpr std::int64_t kArrowPressDelta = 100;
constexpr std::int64_t kArrowRepeatDelta = 120;
constexpr std::uint32_t kRepeatIntervalMs = 30;

constexpr HXColor kEdge{0, 0, 0, 255};
constexpr HXColor kTrack{17, 18, 20, 255};
constexpr HXColor kPart{37, 38, 42, 255};
constexpr HXColor kHoveredPart{46, 48, 51, 255};
constexpr HXColor kTriangle{222, 222, 222, 255};
constexpr HXColor kGrip{80, 80, 80, 255};
constexpr HXColor kNoOutline{0, 0, 0, 0};
constexpr std::int32_t kLeastArrowWithTriangle = 5;

// Contents may be higher than what a product of two lengths leaves room for.
std::int64_t Wide(std::int32_t value) { return value; }

std::int32_t Narrow(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

}  // namespace

HXScrollBar::HXScrollBar(HXObject* parent, HXObject* scrolled, HXPoint position,
                         bool /*markContent*/)
    : HXPanel(parent, position, {kBarWidth, parent == nullptr ? 0 : parent->GetSize().height}),
      content(scrolled) {
  repeatTimer.SetOwner(this, kRepeatTimer);
  stepTimer.SetOwner(this, kStepTimer);
}

std::int32_t HXScrollBar::ContentHeight() const {
  return content == nullptr ? 0 : content->GetSize().height;
}

HXPoint HXScrollBar::ContentPosition() const {
  return content == nullptr ? HXPoint{} : content->GetPosition();
}

bool HXScrollBar::IsInThumb(std::int32_t y) const {
  const std::int32_t top = arrowSize + thumbOffset;
  return y >= top && y < top + thumbLength;
}

// Wheel

void HXScrollBar::ScrollBy(std::int64_t delta) {
  pending = Narrow(Wide(pending) + Narrow(delta / kDeltaPerPixel));
  if (stepTimer.IsRunning()) return;
  Step();
  stepTimer.Start(kStepIntervalMs, false);
}

void HXScrollBar::Step() {
  std::int32_t step = pending;
  if (pending > kLeastStep) step = std::max(pending / 10, kLeastStep);
  if (pending < -kLeastStep) step = std::min(pending / 10, -kLeastStep);
  pending -= step;

  const HXPoint position = ContentPosition();
  const std::int64_t lowest = Wide(GetSize().height) - ContentHeight();
  std::int64_t y = Wide(position.y) + step;
  if (y < lowest) {
    y = lowest;
    pending = 0;
  }
  if (y > 0) {
    y = 0;
    pending = 0;
  }
  if (content != nullptr) content->SetPosition({position.x, Narrow(y)});
  Redraw();
  RedrawNow();
}

void HXScrollBar::OnTimer(int timerId) {
  if (timerId == static_cast<int>(kRepeatTimer)) {
    if (repeatDirection == kUp) ScrollBy(kArrowRepeatDelta);
    if (repeatDirection == kDown) ScrollBy(-kArrowRepeatDelta);
    return;
  }
  Step();
  if (pending == 0) stepTimer.Stop();
}

// Moving the content

void HXScrollBar::SetThumbPosition(std::int32_t y, bool ensureVisible) {
  if (content == nullptr) return;
  if (ensureVisible) {
    BringIntoView(y);
  } else {
    DragThumbTo(y);
  }
}

void HXScrollBar::DragThumbTo(std::int32_t y) {
  const std::int64_t hidden = Wide(ContentHeight()) - GetSize().height;
  const std::int64_t range = std::max(trackLength - thumbLength, 0);
  std::int64_t offset = 0;
  if (hidden > 0 && range > 0) {
    const std::int64_t distance = std::clamp<std::int64_t>(Wide(y) - arrowSize, 0, range);
    offset = distance * hidden / range;
  }
  content->SetPosition({0, Narrow(-offset)});
  content->RedrawNow();
  Redraw();
  RedrawNow();
}

void HXScrollBar::BringIntoView(std::int32_t y) {
  const HXPoint position = content->GetPosition();
  const std::int32_t height = GetSize().height;
  const std::int64_t top = -Wide(position.y);
  const std::int64_t bottomOfLine = Wide(y) + kVisibleMargin;
  // Compares with the bar's height less what is scrolled off, not with the
  // bottom of the view; this makes it move more often than it had to.
  if (top <= y && bottomOfLine <= Wide(height) + position.y) return;
  const std::int64_t wanted = y > top ? bottomOfLine - height : y;
  const std::int64_t offset = std::clamp<std::int64_t>(wanted, 0, ContentHeight());
  content->SetPosition({position.x, Narrow(-offset)});
  content->RedrawNow();
  Redraw();
}

// Mouse

void HXScrollBar::OnMouse(MouseKind kind) {
  const std::int32_t y = GetMousePosition(false).y;
  switch (kind) {
    case kLeftDown:
    case kLeftDouble:
      Press(y);
      break;
    case kMouseMove:
      // Hidden in the middle of a drag, the bar has lost the pointer.
      if (dragging && !HasMouseCapture()) dragging = false;
      if (dragging) SetThumbPosition(y - grabOffset, false);
      UpdateHover(y);
      break;
    case kLeftUp:
      if (dragging) ReleaseMouse();
      dragging = false;
      repeatTimer.Stop();
      break;
    case kMouseExited:
      repeatTimer.Stop();
      ClearHover();
      break;
    default:
      break;
  }
}

void HXScrollBar::Press(std::int32_t y) {
  if (y < arrowSize) {
    HoldArrow(kUp);
  } else if (y > GetSize().height - arrowSize) {
    HoldArrow(kDown);
  } else if (thumbLength != 0) {
    CaptureMouse();
    dragging = true;
    // A press on the track brings the thumb's middle under the pointer.
    grabOffset = IsInThumb(y) ? y - arrowSize - thumbOffset : thumbLength / 2;
    SetThumbPosition(y - grabOffset, false);
  }
}

void HXScrollBar::HoldArrow(Direction direction) {
  ScrollBy(direction == kUp ? kArrowPressDelta : -kArrowPressDelta);
  repeatDirection = direction;
  repeatTimer.Start(kRepeatIntervalMs, false);
}

void HXScrollBar::UpdateHover(std::int32_t y) {
  const bool onThumb = dragging || IsInThumb(y);
  const bool onUp = !onThumb && y < arrowSize;
  const bool onDown = !onThumb && y > GetSize().height - arrowSize;
  if (onThumb == hoverThumb && onUp == hoverUp && onDown == hoverDown) return;
  hoverThumb = onThumb;
  hoverUp = onUp;
  hoverDown = onDown;
  Redraw();
}

void HXScrollBar::ClearHover() {
  hoverThumb = false;
  hoverUp = false;
  hoverDown = false;
  Redraw();
}

// Drawing

void HXScrollBar::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(kEdge);
  dc.DrawRect({0, 0, size.width, size.height});
  dc.SetFillColor(kTrack);
  dc.DrawRect({1, 0, size.width - 1, size.height});
  if (arrowSize > 0) DrawArrows(dc);
  UpdateThumb();
  DrawThumb(dc);
  KeepContentInside();
}

void HXScrollBar::DrawArrows(HXCocoaDC& dc) {
  const HXSize size = GetSize();
  const std::int32_t bottom = size.height - arrowSize + 1;
  dc.SetStroke(kPart, 1);
  dc.DrawLine({1, 0}, {size.width - 1, 0});
  dc.DrawLine({1, bottom}, {size.width - 2, bottom});
  dc.SetStroke(kNoOutline, 1);
  dc.SetFillColor(hoverUp ? kHoveredPart : kPart);
  dc.DrawRect({1, 1, size.width - 1, arrowSize - 2});
  dc.SetFillColor(hoverDown ? kHoveredPart : kPart);
  dc.DrawRect({1, bottom + 1, size.width - 1, arrowSize - 2});
  if (arrowSize < kLeastArrowWithTriangle) return;

  dc.SetStroke(kTriangle, 1);
  const std::int32_t middle = arrowSize / 2;
  for (std::int32_t row = 0; row < 4; ++row) {
    const std::int32_t left = 5 + row;
    const std::int32_t right = 12 - row;
    const std::int32_t upY = middle + 1 - row;
    const std::int32_t downY = size.height - 1 - upY;
    dc.DrawLine({left, upY}, {right, upY});
    dc.DrawLine({left, downY}, {right, downY});
  }
}

void HXScrollBar::UpdateThumb() {
  const std::int32_t height = GetSize().height;
  const std::int32_t contentHeight = ContentHeight();
  trackLength = height - 2 * arrowSize;
  thumbLength = trackLength;
  if (contentHeight > height) {
    thumbLength = Narrow(Wide(trackLength) * height / contentHeight);
  }
  thumbLength = std::max(thumbLength, kMinThumbLength);

  const std::int64_t range = Wide(trackLength) - thumbLength;
  const std::int64_t scrolled = -Wide(ContentPosition().y);
  std::int64_t offset = scrolled;
  if (contentHeight > height) {
    offset = scrolled * range / (Wide(contentHeight) - height);
  }
  thumbOffset = Narrow(std::min(std::max<std::int64_t>(offset, 0), range));
}

void HXScrollBar::DrawThumb(HXCocoaDC& dc) {
  const std::int32_t width = GetSize().width;
  const std::int32_t top = arrowSize + thumbOffset;
  const std::int32_t middle = top + thumbLength / 2;
  const std::int32_t bottom = top + thumbLength - 1;
  dc.SetStroke(kPart, 1);
  dc.DrawLine({1, top}, {width - 1, top});
  dc.SetStroke(kNoOutline, 1);
  dc.SetFillColor(hoverThumb ? kHoveredPart : kPart);
  dc.DrawRect({1, top + 1, width - 1, thumbLength - 2});
  dc.SetStroke(kGrip, 1);
  for (const std::int32_t line : {-3, -1, 1, 3}) {
    dc.DrawLine({5, middle + line}, {width - 6, middle + line});
  }
  dc.SetStroke(kPart, 1);
  dc.DrawLine({1, bottom}, {width - 1, bottom});
}

void HXScrollBar::KeepContentInside() {
  if (content == nullptr) return;
  const std::int32_t height = GetSize().height;
  const std::int32_t contentHeight = ContentHeight();
  const HXPoint position = content->GetPosition();
  HXPoint inside = position;
  if (contentHeight <= height) {
    inside = {0, 0};
  } else if (Wide(position.y) + contentHeight < height) {
    inside = {0, height - contentHeight};
  }
  if (inside != position) content->SetPosition(inside);
}
