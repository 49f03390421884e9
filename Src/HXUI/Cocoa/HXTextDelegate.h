#pragma once

#import <AppKit/AppKit.h>

class HXTextControl;

/// The delegate of the platform field of a single-line `HXTextControl`, plain
/// or password: keeps the maximum length, turns editing commands into keys and
/// finds out when editing is over. Owned by the control.
@interface HXTextDelegate : NSObject <NSTextFieldDelegate> {
  int maximumLength;
  NSTextField* textField;
  HXTextControl* textControl;
  NSString* previousValue;
}

/// Neither is retained; the control cuts both links with `disconnect`.
- (id)initWithField:(NSTextField*)field control:(HXTextControl*)control;
- (void)disconnect;

/// The field's text at this moment, while it is being edited too.
- (NSString*)text;

/// In UTF-16 units, 100 at first.
- (void)setMaximumLength:(int)length;
- (BOOL)isTooLong;
/// Puts `text` into the field, whatever its length; an editing session goes on
/// with the caret at `caret`. Changes that are too long fall back to it.
- (void)showText:(NSString*)text caret:(NSUInteger)caret;

/// Shows a key to the event sinks and then to the control. NO when one of them
/// swallowed it, or when the control is gone.
- (BOOL)keyDown:(int)key;

@end
