#include "Src/HXUI/Cocoa/Workspace.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/Conversions.h"

void RevealInFileViewer(const std::string& path) {
  NSString* file = ToNative(path);
  if (file == nil) return;
  [[NSWorkspace sharedWorkspace] selectFile:file inFileViewerRootedAtPath:@""];
}

void OpenURL(const std::string& text) {
  NSString* string = ToNative(text);
  NSURL* url = string == nil ? nil : [NSURL URLWithString:string];
  if (url != nil) [[NSWorkspace sharedWorkspace] openURL:url];
}
