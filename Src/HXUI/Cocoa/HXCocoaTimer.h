#pragma once

#include <cstdint>

#include "Src/HXUI/Cocoa/NativeTypes.h"

class HXObject;

/// A timer of the main run loop that calls `OnTimer` of its owner. A member of
/// its owner or of an object that dies before the owner does. Fires only while
/// the run loop is in the default mode, which includes `HXWindow::RunModal`.
/// Main thread only.
class HXCocoaTimer {
 public:
  HXCocoaTimer() = default;
  /// Stops.
  ~HXCocoaTimer();
  HXCocoaTimer(const HXCocoaTimer&) = delete;
  HXCocoaTimer& operator=(const HXCocoaTimer&) = delete;

  /// Must be called before `Start`; `ownerTimerId` is what `OnTimer` gets.
  void SetOwner(HXObject* owner, std::uint32_t ownerTimerId);

  /// Starts with an interval in milliseconds. Does nothing while running: the
  /// interval stays as it was. A one-shot timer is stopped before its owner is
  /// called, so the owner may start it again from there.
  void Start(std::uint32_t intervalMs, bool oneShot);
  void Stop();
  bool IsRunning() const { return running; }

  /// Called by the platform's timer.
  void Tick();

 private:
  HXObject* win = nullptr;
  std::uint32_t timerId = 0;
  std::uint32_t interval = 0;
  bool running = false;
  bool oneShot = false;
  NSTimer* timer = nullptr;
};
