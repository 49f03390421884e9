#import "Src/HXUI/Cocoa/HXTextField.h"

#include "Src/HXUI/Cocoa/Conversions.h"
#import "Src/HXUI/Cocoa/HXTextDelegate.h"
#include "Src/HXUI/HXEventSinks.h"
#include "Src/HXUI/HXTextControl.h"

namespace {

/// The key press that is typing `text` at the moment; nil when the text comes
/// from elsewhere: the clipboard, a drag, a composition of several keys.
NSEvent* KeyThatTypes(NSString* text) {
  NSEvent* event = [NSApp currentEvent];
  if ([event type] != NSKeyDown || ([event modifierFlags] & NSCommandKeyMask) != 0) return nil;
  if (![[event characters] isEqualToString:text]) return nil;
  return [[event charactersIgnoringModifiers] length] == 0 ? nil : event;
}

}  // namespace

/// The platform's fields may answer this message of their editors, or not.
@interface NSTextField (HXFieldEditor)
- (BOOL)textView:(NSTextView*)editor
    shouldChangeTextInRange:(NSRange)range
          replacementString:(NSString*)text;
@end

@implementation HXTextField

- (void)setTextControl:(HXTextControl*)control {
  textControl = control;
}

- (BOOL)becomeFirstResponder {
  [[self retain] autorelease];
  if (textControl == nullptr) return [super becomeFirstResponder];
  textControl->FieldGotFocus();
  // The owner may have deleted the control.
  return textControl != nullptr && [super becomeFirstResponder];
}

- (BOOL)textView:(NSTextView*)editor
    shouldChangeTextInRange:(NSRange)range
          replacementString:(NSString*)text {
  [[self retain] autorelease];
  NSEvent* event = textControl == nullptr ? nil : KeyThatTypes(text);
  if (event != nil) {
    const unichar key = [[event charactersIgnoringModifiers] characterAtIndex:0];
    if (![static_cast<HXTextDelegate*>([self delegate]) keyDown:key]) return NO;
  }
  if (![NSTextField instancesRespondToSelector:_cmd]) return YES;
  return [super textView:editor shouldChangeTextInRange:range replacementString:text];
}

- (void)textDidChange:(NSNotification*)notification {
  [[self retain] autorelease];
  if (textControl != nullptr) HXEventSinks::Send(textControl, kKeyUp, 0);
  [super textDidChange:notification];
}

- (void)textDidEndEditing:(NSNotification*)notification {
  [[self retain] autorelease];
  [super textDidEndEditing:notification];
}

@end
