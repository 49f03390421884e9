#include "Src/HXUI/HXMouseRouter.h"

#include "Src/HXUI/HXEventSinks.h"
#include "Src/HXUI/HXObject.h"
#include "Src/HXUI/HXObjectGuard.h"

HXObject* HXMouseRouter::captureOwner = nullptr;

void HXMouseRouter::Handle(HXObject* widget, MouseKind kind) {
  if (captureOwner != nullptr) {
    if (kind != kMouseEntered && kind != kMouseExited) Deliver(*captureOwner, kind);
    return;
  }

  const HXObjectGuard guard(widget);
  if (!HXEventSinks::Send(widget, kind, 0)) return;
  if (!guard.IsAlive() || widget->IsFrozen()) return;
  if (!PassesPressFilter(*widget, kind)) return;
  if (kind == kMouseEntered) widget->hovered = true;
  if (kind == kMouseExited) widget->hovered = false;
  Deliver(*widget, kind);
}

bool HXMouseRouter::MoveToCaptureOwner() {
  if (captureOwner == nullptr) return false;
  Deliver(*captureOwner, kMouseMove);
  return true;
}

bool HXMouseRouter::PassesPressFilter(HXObject& widget, MouseKind kind) {
  // A sink may have taken the capture a moment ago.
  if (captureOwner != nullptr) return true;
  if (kind == kLeftDown) widget.pressed = true;
  if (kind == kMouseExited) widget.pressed = false;
  if (kind != kLeftUp) return true;
  const bool wasPressed = widget.pressed;
  widget.pressed = false;
  return wasPressed;
}

void HXMouseRouter::Deliver(HXObject& widget, MouseKind kind) {
  const HXObjectGuard guard(&widget);
  widget.OnMouse(kind);
  if (guard.IsAlive()) widget.Notify(kind);
}
