#pragma once

#import <AppKit/AppKit.h>

class HXTextControl;

/// The platform field of a plain single-line `HXTextControl`. Tells it that the
/// keyboard has come, and lets the keys that type something pass through its
/// delegate first. Retained by its control and by its superview.
@interface HXTextField : NSTextField {
  HXTextControl* textControl;
}

/// The control, which is not owned and cuts this link when it goes.
- (void)setTextControl:(HXTextControl*)control;

@end
