#import "Src/HXUI/Cocoa/HXTextDelegate.h"

#include <algorithm>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/HXEventSinks.h"
#include "Src/HXUI/HXObjectGuard.h"
#include "Src/HXUI/HXTextControl.h"
#include "Src/HXUI/KeyCode.h"

namespace {

/// GNUstep's key bindings give Escape to word completion, macOS leaves that to
/// other keys.
bool IsEscapeAsCompletion(SEL command) {
  if (!sel_isEqual(command, @selector(complete:))) return false;
  NSEvent* event = [NSApp currentEvent];
  return [event type] == NSKeyDown && ([event modifierFlags] & NSAlternateKeyMask) == 0 &&
         [[event charactersIgnoringModifiers] isEqualToString:@"\033"];
}

/// The key that an editing command stands for, 0 for any other command.
int KeyOf(SEL command) {
  if (sel_isEqual(command, @selector(insertNewline:))) return kKeyInsertNewline;
  if (sel_isEqual(command, @selector(cancelOperation:)) || IsEscapeAsCompletion(command)) {
    return kKeyEscape;
  }
  if (sel_isEqual(command, @selector(insertTab:))) return kKeyTab;
  if (sel_isEqual(command, @selector(insertBacktab:))) return kKeyBackTab;
  return 0;
}

}  // namespace

@implementation HXTextDelegate

- (id)initWithField:(NSTextField*)field control:(HXTextControl*)control {
  self = [super init];
  if (self == nil) return nil;
  maximumLength = 100;
  textField = field;
  textControl = control;
  previousValue = [[field stringValue] copy];
  return self;
}

- (void)dealloc {
  [previousValue release];
  [super dealloc];
}

- (void)disconnect {
  textField = nil;
  textControl = nullptr;
}

- (NSString*)text {
  // Until it has been drawn once, GNUstep's field does not ask its editor.
  NSText* editor = [textField currentEditor];
  return editor == nil ? [textField stringValue] : [[[editor string] copy] autorelease];
}

- (void)setMaximumLength:(int)length {
  maximumLength = length;
}

- (BOOL)isTooLong {
  return static_cast<NSInteger>([[self text] length]) > maximumLength;
}

- (void)setPreviousValue:(NSString*)value {
  NSString* copied = [value copy];
  [previousValue release];
  previousValue = copied;
}

- (void)showText:(NSString*)text caret:(NSUInteger)caret {
  NSText* editor = [textField currentEditor];
  if (editor == nil) {
    [textField setStringValue:text];
  } else {
    // The field's own setter would end the editing.
    [editor setString:text];
    [editor setSelectedRange:NSMakeRange(caret, 0)];
    // The steps so far fit another text: undoing them would reach beyond this one.
    [[editor undoManager] removeAllActions];
  }
  [self setPreviousValue:text];
}

/// As if the user's last change had not happened.
- (void)takeBackChange {
  NSText* editor = [textField currentEditor];
  const NSUInteger length = [previousValue length];
  const NSUInteger present = [[self text] length];
  const NSUInteger added = present - std::min(present, length);
  const NSUInteger caret = NSMaxRange([editor selectedRange]);
  [self showText:[[previousValue retain] autorelease]
           caret:std::min(caret - std::min(caret, added), length)];
}

- (void)controlTextDidChange:(NSNotification*)notification {
  (void)notification;
  if (textField == nil) return;
  if ([self isTooLong]) {
    [self takeBackChange];
  } else {
    [self setPreviousValue:[self text]];
  }
}

- (void)controlTextDidEndEditing:(NSNotification*)notification {
  // The owner may delete the control; field and editor have work left after this.
  [[self retain] autorelease];
  [[textField retain] autorelease];
  [[[[notification userInfo] objectForKey:@"NSFieldEditor"] retain] autorelease];

  const int movement = [[[notification userInfo] objectForKey:@"NSTextMovement"] intValue];
  if (movement == NSReturnTextMovement) return;
  if (movement == NSTabTextMovement || movement == NSBacktabTextMovement) {
    NSView* next = [textField nextKeyView];
    if (next == nil || next == textField) return;
  }
  if (textControl != nullptr) textControl->FieldEndedEditing();
}

- (BOOL)keyDown:(int)key {
  if (textControl == nullptr) return NO;
  [[self retain] autorelease];
  const HXObjectGuard guard(textControl);
  if (!HXEventSinks::Send(textControl, kKeyDown, key) || !guard.IsAlive()) return NO;
  const bool passes = textControl->OnKeyDown(key);
  return passes && guard.IsAlive();
}

- (BOOL)control:(NSControl*)control textView:(NSTextView*)editor doCommandBySelector:(SEL)command {
  const int key = KeyOf(command);
  if (key == 0) return NO;
  [[control retain] autorelease];
  [[editor retain] autorelease];
  const BOOL passes = [self keyDown:key];
  // Cancelling has no effect on a field, while completion opens a window.
  return !passes || sel_isEqual(command, @selector(complete:));
}

@end
