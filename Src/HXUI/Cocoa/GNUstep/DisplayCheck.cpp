#include "Src/HXUI/Cocoa/DisplayCheck.h"

#include <X11/Xlib.h>

bool IsDisplayAvailable() {
  Display* display = XOpenDisplay(nullptr);
  if (display == nullptr) return false;
  XCloseDisplay(display);
  return true;
}
