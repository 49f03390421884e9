#include "Src/HXUI/Cocoa/Clipboard.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/Conversions.h"

void SetClipboardText(const std::string& text) {
  NSString* string = ToNative(text);
  if (string == nil) return;
  NSPasteboard* pasteboard = [NSPasteboard generalPasteboard];
  [pasteboard declareTypes:[NSArray arrayWithObject:NSStringPboardType] owner:NSApp];
  [pasteboard setString:string forType:NSStringPboardType];
}
