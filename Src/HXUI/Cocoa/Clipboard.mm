#include "Src/HXUI/Cocoa/Clipboard.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/Conversions.h"

namespace {

/// False when the server that keeps what was copied has just ended.
bool Copy(NSString* string) {
  @try {
    NSPasteboard* pasteboard = [NSPasteboard generalPasteboard];
    [pasteboard declareTypes:[NSArray arrayWithObject:NSStringPboardType] owner:NSApp];
    [pasteboard setString:string forType:NSStringPboardType];
  } @catch (NSException* exception) {
    NSLog(@"While something was copied: %@", [exception reason]);
    return false;
  }
  return true;
}

}  // namespace

void SetClipboardText(const std::string& text) {
  NSString* string = ToNative(text);
  if (string == nil) return;
  // The platform starts another server for whoever asks next.
  if (!Copy(string)) Copy(string);
}
