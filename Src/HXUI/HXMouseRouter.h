#pragma once

#include "Src/HXUI/MouseKind.h"

class HXObject;

/// The rules by which a mouse event finds its widget: mouse capture, event
/// sinks, the press filter and the hovered flag. Native views call it with
/// what happened to them; it calls `OnMouse` and then the notification hook.
/// Keeps the process-wide capture owner. Main thread only.
class HXMouseRouter {
 public:
  /// An event of the view of `widget`, which may be null.
  static void Handle(HXObject* widget, MouseKind kind);

  /// Movement anywhere. True when a capture owner took it.
  static bool MoveToCaptureOwner();

  static HXObject* GetCaptureOwner() { return captureOwner; }
  static void SetCaptureOwner(HXObject* owner) { captureOwner = owner; }

 private:
  /// False when the event is to be dropped.
  static bool PassesPressFilter(HXObject& widget, MouseKind kind);
  static void Deliver(HXObject& widget, MouseKind kind);

  static HXObject* captureOwner;
};
