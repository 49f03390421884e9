#include "Src/HXUI/Cocoa/EventWait.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>
#include <sys/eventfd.h>

@interface GSDisplayServer (QueuedEvents)
/// The event that was queued last and is still there, or nil.
- (NSEvent*)lastQueuedEvent;
@end

@implementation GSDisplayServer (QueuedEvents)
- (NSEvent*)lastQueuedEvent {
  return [event_queue lastObject];
}
@end

/// An input of the run loop that has something to offer exactly when an event has
/// come into the queue since it was last asked.
@interface QueueWatch : NSObject <RunLoopEvents> {
  NSEvent* seen;
}
- (BOOL)runLoopShouldBlock:(BOOL*)trigger;
- (void)receivedEvent:(void*)data
                 type:(RunLoopEventType)type
                extra:(void*)extra
              forMode:(NSString*)mode;
@end

@implementation QueueWatch
/// YES: wait for the descriptor, which is always ready, so the wait ends at once.
/// NO: leave it out of this wait.
- (BOOL)runLoopShouldBlock:(BOOL*)trigger {
  *trigger = NO;
  NSEvent* last = [GSCurrentServer() lastQueuedEvent];
  if (last == seen) return NO;
  [seen release];
  seen = [last retain];
  return last != nil;
}

- (void)receivedEvent:(void*)data
                 type:(RunLoopEventType)type
                extra:(void*)extra
              forMode:(NSString*)mode {
  (void)data;
  (void)type;
  (void)extra;
  (void)mode;
}

- (void)dealloc {
  [seen release];
  [super dealloc];
}
@end

// While it prepares to wait, GNUstep's run loop may move an event from the X
// connection into the queue, and not count it as input: it would sleep with the
// event in the queue until another one comes. It asks its inputs again before
// it goes to sleep, and then this one brings it back.
void KeepEventsMoving() {
  const int alwaysReady = eventfd(1, EFD_CLOEXEC);
  // The run loop does not retain its inputs; this one lasts as long as the process.
  QueueWatch* watch = [[QueueWatch alloc] init];
  for (NSString *mode in [NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                                   NSEventTrackingRunLoopMode, nil]) {
    [[NSRunLoop currentRunLoop] addEvent:reinterpret_cast<void*>(static_cast<intptr_t>(alwaysReady))
                                    type:ET_RDESC
                                 watcher:watch
                                 forMode:mode];
  }
}
