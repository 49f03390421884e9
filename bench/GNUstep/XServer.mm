#include "bench/GNUstep/XServer.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>
#include <X11/Xlib.h>

void XServer::Finish() { XSync(static_cast<Display*>([GSCurrentServer() serverDevice]), False); }

void XServer::MovePointer(HXPoint place) {
  // A connection of our own: what it waits for does not get in AppKit's way.
  static Display* display = XOpenDisplay(nullptr);
  XWarpPointer(display, None, DefaultRootWindow(display), 0, 0, 0, 0, place.x, place.y);
  XSync(display, False);
}
