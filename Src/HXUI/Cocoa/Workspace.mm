#include "Src/HXUI/Cocoa/Workspace.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/Conversions.h"

namespace {

/// GNUstep puts up an alert when nobody is in charge of the scheme, and says
/// beforehand who is. macOS opens what it can and is silent otherwise.
bool HasHandler(NSURL* url) {
  const SEL question = @selector(getBestAppInRole:forScheme:);
  NSWorkspace* workspace = [NSWorkspace sharedWorkspace];
  if ([url isFileURL] || ![workspace respondsToSelector:question]) return true;
  return [workspace performSelector:question withObject:nil withObject:[url scheme]] != nil;
}

}  // namespace

void RevealInFileViewer(const std::string& path) {
  NSString* file = ToNative(path);
  if (file == nil) return;
  [[NSWorkspace sharedWorkspace] selectFile:file inFileViewerRootedAtPath:@""];
}

void OpenURL(const std::string& text) {
  NSString* string = ToNative(text);
  NSURL* url = string == nil ? nil : [NSURL URLWithString:string];
  if (url != nil && HasHandler(url)) [[NSWorkspace sharedWorkspace] openURL:url];
}
