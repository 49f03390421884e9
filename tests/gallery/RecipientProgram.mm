// Stands in for the file viewer and the browser of a desktop: an application without a
// window that writes what it is asked for into the file "requests" of its bundle, a line
// each.

#import <AppKit/AppKit.h>

#include <cstdio>

#include "Src/HXUI/Cocoa/ApplicationStart.h"

@interface Recipient : NSObject
@end

@implementation Recipient

- (void)note:(NSString*)request {
  NSString* file = [[[NSBundle mainBundle] bundlePath] stringByAppendingPathComponent:@"requests"];
  FILE* stream = std::fopen([file fileSystemRepresentation], "a");
  if (stream == nullptr) return;
  std::fprintf(stream, "%s\n", [request UTF8String]);
  std::fclose(stream);
}

- (BOOL)selectFile:(NSString*)path inFileViewerRootedAtPath:(NSString*)root {
  [self note:[NSString stringWithFormat:@"select %@ in <%@>", path, root]];
  return YES;
}

- (BOOL)application:(NSApplication*)application openURL:(NSURL*)url {
  (void)application;
  [self note:[NSString stringWithFormat:@"open %@", [url absoluteString]]];
  return YES;
}

@end

int main() {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  if (!StartApplication("Recipient")) return 1;
  [NSApp setDelegate:static_cast<id>([[Recipient alloc] init])];
  [NSApp run];
  [pool drain];
  return 0;
}
