#import "Src/HXUI/Cocoa/HXWindowDelegate.h"

#include "Src/HXUI/HXWindow.h"

@implementation HXWindowDelegate

- (void)setHXWindow:(HXWindow*)window {
  hxWindow = window;
}

- (void)setNSWindow:(NSWindow*)window {
  nsWindow = window;
}

- (BOOL)windowShouldClose:(id)sender {
  (void)sender;
  return hxWindow == nullptr || hxWindow->CloseButtonPressed() ? YES : NO;
}

- (void)windowWillClose:(NSNotification*)notification {
  (void)notification;
  if (hxWindow != nullptr) hxWindow->WindowWillClose();
}

- (void)windowDidResize:(NSNotification*)notification {
  (void)notification;
  if (hxWindow != nullptr) hxWindow->OnSize();
}

- (void)onFocusLost:(NSNotification*)notification {
  (void)notification;
  if (hxWindow != nullptr) hxWindow->OnFocusLost();
}

@end
