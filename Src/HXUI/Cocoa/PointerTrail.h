#pragma once

#include "Src/HXUI/Cocoa/NativeTypes.h"

/// Keeps, for as long as it lives, the place at which `window` has last seen the
/// pointer in an event. The platform tells from there to the next event's place
/// what the pointer has entered and left. Main thread only.
class PointerTrail {
 public:
  explicit PointerTrail(NSWindow* keptWindow);
  ~PointerTrail();
  PointerTrail(const PointerTrail&) = delete;
  PointerTrail& operator=(const PointerTrail&) = delete;

 private:
  struct Place {
    double x = 0;
    double y = 0;
  };

  NSWindow* window;
  Place place;
};
