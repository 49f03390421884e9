#include "Src/HXUI/Cocoa/WindowOwner.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>
#include <X11/Xlib.h>

// To the window manager a modal window is a window like any other: a click on
// the blocked one behind would raise that one over it. So it has to be told.
void KeepInFront(NSWindow* dialog, NSWindow* owner) {
  if (dialog == nil || owner == nil) return;
  [GSServerForWindow(dialog) setParentWindow:static_cast<int>([owner windowNumber])
                              forChildWindow:static_cast<int>([dialog windowNumber])];
}

// GNUstep asks with the time of the last click or key that it knows. A click on a
// close button is not among them, so the window manager would take the dialog for
// one that wants to steal the focus.
void FocusDialog(NSWindow* dialog) {
  GSDisplayServer* server = GSServerForWindow(dialog);
  if (server == nil) return;
  auto* display = static_cast<Display*>([server serverDevice]);
  constexpr int kWordBits = 32;
  constexpr long kUserAskedForIt = 2;
  XEvent request = {};
  request.xclient.type = ClientMessage;
  request.xclient.window =
      reinterpret_cast<Window>([server windowDevice:static_cast<int>([dialog windowNumber])]);
  request.xclient.message_type = XInternAtom(display, "_NET_ACTIVE_WINDOW", False);
  request.xclient.format = kWordBits;
  request.xclient.data.l[0] = kUserAskedForIt;
  XSendEvent(display, DefaultRootWindow(display), False,
             SubstructureRedirectMask | SubstructureNotifyMask, &request);
}
