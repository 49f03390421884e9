// A program from which something can be dragged: a small window in a corner of the
// screen, on which a press begins the drag. What is dragged stands in the environment,
// since arguments would be opened as documents: DRAG_FILES holds paths, a line each,
// or else DRAG_TEXT a text.
//
// Says on standard output, a word a line, how it goes: "dragging",
// "accepted" and "refused" when the place under the pointer has made
// up its mind, and "ended".

#import <AppKit/AppKit.h>

#include <cstdio>

#include "Src/HXUI/Cocoa/ApplicationStart.h"

namespace {

constexpr CGFloat kSide = 40;

void Say(const char* word) {
  std::printf("%s\n", word);
  std::fflush(stdout);
}

void FillPasteboard(NSPasteboard* pasteboard) {
  NSDictionary* environment = [[NSProcessInfo processInfo] environment];
  NSString* files = [environment objectForKey:@"DRAG_FILES"];
  NSString* type = files == nil ? NSStringPboardType : NSFilenamesPboardType;
  [pasteboard declareTypes:[NSArray arrayWithObject:type] owner:nil];
  if (files == nil) {
    [pasteboard setString:[environment objectForKey:@"DRAG_TEXT"] forType:type];
  } else {
    [pasteboard setPropertyList:[files componentsSeparatedByString:@"\n"] forType:type];
  }
}

}  // namespace

/// Overhears the answers to a drag, of which a source is not told.
@interface DragApplication : NSApplication {
 @public
  BOOL isOver;
  NSUInteger lastAnswer;
  NSUInteger toldAnswer;
}
@end

@implementation DragApplication

- (NSEvent*)nextEventMatchingMask:(NSUInteger)mask
                        untilDate:(NSDate*)date
                           inMode:(NSString*)mode
                          dequeue:(BOOL)dequeue {
  NSEvent* event = [super nextEventMatchingMask:mask untilDate:date inMode:mode dequeue:dequeue];
  if ([event type] == NSAppKitDefined && [event subtype] == GSAppKitDraggingStatus) {
    const NSUInteger answer = [event data2] == NSDragOperationNone ? 1 : 2;
    // A window that the drag comes into answers twice, and differently: the platform asks it
    // about some other place first. Only the periodic questions that follow are answered alike.
    // Some answers are still on their way when all is over.
    if (answer == lastAnswer && answer != toldAnswer && !isOver) {
      Say(answer == 1 ? "refused" : "accepted");
      toldAnswer = answer;
    }
    lastAnswer = answer;
  }
  return event;
}

@end

@interface DragView : NSView
@end

@implementation DragView

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
  (void)notification;
  [[self window] orderFrontRegardless];
}

- (BOOL)acceptsFirstMouse:(NSEvent*)event {
  (void)event;
  return YES;
}

- (void)drawRect:(NSRect)dirty {
  [[NSColor greenColor] set];
  NSRectFill(dirty);
}

- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  (void)isLocal;
  return NSDragOperationAll;
}

- (void)draggedImage:(NSImage*)image beganAt:(NSPoint)point {
  (void)image;
  (void)point;
  Say("dragging");
}

- (void)draggedImage:(NSImage*)image endedAt:(NSPoint)point operation:(NSDragOperation)operation {
  (void)image;
  (void)point;
  (void)operation;
  static_cast<DragApplication*>(NSApp)->isOver = YES;
  Say("ended");
}

- (void)mouseDown:(NSEvent*)event {
  NSPasteboard* pasteboard = [NSPasteboard pasteboardWithName:NSDragPboard];
  FillPasteboard(pasteboard);
  NSImage* image = [[[NSImage alloc] initWithSize:NSMakeSize(8, 8)] autorelease];
  [image lockFocus];
  [[NSColor greenColor] set];
  NSRectFill(NSMakeRect(0, 0, 8, 8));
  [image unlockFocus];
  [self dragImage:image
               at:[event locationInWindow]
           offset:NSZeroSize
            event:event
       pasteboard:pasteboard
           source:self
        slideBack:NO];
}

@end

int main() {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  [DragApplication sharedApplication];
  if (!StartApplication("DragSource")) return 1;

  const CGFloat top = NSMaxY([[NSScreen mainScreen] frame]);
  NSWindow* window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, top - kSide, kSide, kSide)
                                                 styleMask:NSBorderlessWindowMask
                                                   backing:NSBackingStoreBuffered
                                                     defer:NO];
  [window setTitle:@"DragSource"];
  DragView* view = [[DragView alloc] initWithFrame:NSMakeRect(0, 0, kSide, kSide)];
  [window setContentView:view];
  [NSApp setDelegate:static_cast<id>(view)];
  [NSApp run];
  [pool drain];
  return 0;
}
