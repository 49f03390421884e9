#include "Src/HXUI/HXObject.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/Cocoa/NativeView.h"
#include "Src/HXUI/HXEventSinks.h"
#include "Src/HXUI/HXLayout.h"
#include "Src/HXUI/HXMouseRouter.h"
#include "Src/HXUI/HXObjectGuard.h"

HXObject::HXObject(HXObject* parentObject) : parent(parentObject) {
  if (parent == nullptr) return;
  parent->children.push_back(this);
  freezeDepth = std::max(parent->freezeDepth, 0);
}

HXObject::~HXObject() {
  GiveUpCapture();
  HXObjectGuard::ObjectDestroyed(this);
  HXEventSinks::Remove(this);
  // The first one first. Each takes itself off the list, which is cheap at its end only.
  std::reverse(children.begin(), children.end());
  while (!children.empty()) delete children.back();
  if (parent != nullptr) parent->RemoveChild(this);
  // The subclass is gone by now, and with it its own Close, which it has
  // called itself; this one covers subclasses that have none.
  HXObject::Close();
}

void HXObject::RemoveChild(HXObject* child) {
  const auto found = std::find(children.rbegin(), children.rend(), child);
  if (found != children.rend()) children.erase(std::next(found).base());
  std::erase_if(anchors, [child](const Anchor& anchor) { return anchor.child == child; });
  if (layout) layout->RemoveWidget(child);
}

void HXObject::Close() {
  if (closed) return;
  // First of all: whoever loses the keyboard by this may close the widget once more.
  closed = true;
  GiveUpCapture();
  const HXObjectGuard guard(this);
  NativeView::Unfocus(nativeView);
  // The loss of the keyboard may have been the end of this widget.
  if (guard.IsAlive()) NativeView::RemoveFromParent(nativeView);
}

void HXObject::SetColor(HXColor newColor) { color = newColor; }
HXSize HXObject::GetMinSize() const { return minSize; }
void HXObject::SetMinSize(HXSize size) { minSize = size; }

void HXObject::SetVisible(bool show) {
  visible = show;
  if (!show) GiveUpCapture();
  NativeView::SetHidden(nativeView, !show);
}

void HXObject::SetFocus() { NativeView::Focus(nativeView); }
bool HXObject::HasFocus() const { return NativeView::IsFocused(nativeView); }

void HXObject::SetLayout(std::unique_ptr<HXLayout> newLayout) {
  layout = std::move(newLayout);
  if (layout) layout->Apply(GetSize());
}

void HXObject::ExtraHook1() {}
void HXObject::ExtraHook2() {}
void HXObject::OnClose() {}
void HXObject::OnFocusGained() {}
void HXObject::OnFocusLost() {}

void HXObject::Draw() {
  if (color.IsTransparentKey()) return;
  HXCocoaDC dc(this);
  dc.SetFillColor(color);
  const HXSize size = GetSize();
  dc.DrawRect({0, 0, size.width, size.height});
}

bool HXObject::OnKeyDown(int) { return true; }
void HXObject::ExtraHook3() {}
void HXObject::OnMouse(MouseKind) {}
void HXObject::OnSize() {}
void HXObject::OnTimer(int) {}
bool HXObject::OnDropFile(const char*) { return false; }
void HXObject::OnEventSink(HXEventSinkRecord&) {}

void HXObject::AddChildView(NSView* view) { NativeView::AddSubview(nativeView, view); }

void HXObject::SetFrozen(bool freeze) {
  for (HXObject* child : children) child->SetFrozen(freeze);
  freezeDepth += freeze ? 1 : -1;
}

void HXObject::Notify(std::uint32_t eventCode) {
  if (hook == nullptr || hookTarget == nullptr) return;
  hookTarget->sender = this;
  hookTarget->senderId = commandId;
  (hookTarget->*hook)(eventCode);
}

void HXObject::Redraw() { NativeView::MarkForRedraw(nativeView); }
void HXObject::RedrawNow() { NativeView::RedrawNow(nativeView); }

void HXObject::CaptureMouse() {
  HXMouseRouter::SetCaptureOwner(this);
  const HXObjectGuard guard(this);
  SetFocus();
  if (guard.IsAlive()) NativeView::SetCursorRectsEnabled(nativeView, false);
}

void HXObject::ReleaseMouse() {
  HXMouseRouter::SetCaptureOwner(nullptr);
  NativeView::SetCursorRectsEnabled(nativeView, true);
}

void HXObject::NotifyClose() {
  const HXObjectGuard guard(this);
  OnClose();
  // Each call may add or delete children; going on by index skips none that stay.
  for (std::size_t i = 0; guard.IsAlive() && i < children.size();) {
    HXObject* child = children[i];
    // A dialog that this window owns stays open, and hears of its own end.
    if (NativeView::IsInside(child->nativeView, nativeView)) child->NotifyClose();
    if (guard.IsAlive() && i < children.size() && children[i] == child) ++i;
  }
}

void HXObject::GiveUpCapture() {
  HXObject* const owner = HXMouseRouter::GetCaptureOwner();
  for (const HXObject* object = owner; object != nullptr; object = object->parent) {
    if (object == this) return owner->ReleaseMouse();
  }
}

bool HXObject::HasMouseCapture() {
  if (HXMouseRouter::GetCaptureOwner() != this) return false;
  if (!NativeView::AreCursorRectsEnabled(nativeView)) return true;
  HXMouseRouter::SetCaptureOwner(nullptr);
  return false;
}

HXPoint HXObject::GetMousePosition(bool screen) const {
  return NativeView::GetMousePosition(nativeView, screen);
}

HXPoint HXObject::ClientToScreen(HXPoint point) const {
  return NativeView::ClientToScreen(nativeView, point);
}

HXObject* HXObject::GetFocusedObject() { return NativeView::GetFocusedObject(); }

void HXObject::SetAcceptsFileDrops(bool accept) {
  NativeView::SetAcceptsFileDrops(nativeView, accept);
}

void HXObject::AddAnchor(HXObject* child, Edge edge, std::int32_t margin) {
  anchors.push_back({child, edge, margin});
}

void HXObject::ApplyAnchors() {
  const HXSize size = GetSize();
  // By index: a child that is deleted meanwhile takes its anchors with it.
  for (std::size_t i = 0; i < anchors.size(); ++i) {
    const Anchor anchor = anchors[i];
    HXPoint position = anchor.child->GetPosition();
    const HXSize childSize = anchor.child->GetSize();
    if (anchor.edge == kRight) position.x = size.width - childSize.width - anchor.margin;
    if (anchor.edge == kBottom) position.y = size.height - childSize.height - anchor.margin;
    anchor.child->SetPosition(position);
  }
}

void HXObject::ResizeContent() {
  if (layout) layout->Apply(GetSize());
  ApplyAnchors();
  OnSize();
}

void HXObject::AddEventSink(HXObject* sink) { HXEventSinks::Add(sink); }
