#pragma once

#import <AppKit/AppKit.h>

class HXWindow;

/// The delegate of an `HXTopWindow`: forwards close, resize and loss of the
/// keyboard to the `HXWindow`, which owns it and is not owned by it.
@interface HXWindowDelegate : NSObject <NSWindowDelegate> {
  HXWindow* hxWindow;
  NSWindow* nsWindow;
}

- (void)setHXWindow:(HXWindow*)window;
- (void)setNSWindow:(NSWindow*)window;

/// The window is no longer the key window.
- (void)onFocusLost:(NSNotification*)notification;

@end
