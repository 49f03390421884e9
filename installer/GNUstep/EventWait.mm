#include "installer/EventWait.h"

#import <AppKit/AppKit.h>

namespace {

/// A click may be noticed this much too late, in seconds.
constexpr NSTimeInterval kLongestNap = 0.05;

}  // namespace

/// Does nothing: waking the run loop is all that is wanted.
@interface Alarm : NSObject
- (void)ring:(NSTimer*)timer;
@end

@implementation Alarm
- (void)ring:(NSTimer*)timer {
  (void)timer;
}
@end

// While it prepares to wait, GNUstep's run loop may fetch an event and then
// sleep over it until another one comes: a window stays black or a click seems
// lost. After each wake-up it looks into its queue again.
void KeepEventsMoving() {
  Alarm* alarm = [[[Alarm alloc] init] autorelease];
  NSTimer* timer = [NSTimer timerWithTimeInterval:kLongestNap
                                           target:alarm
                                         selector:@selector(ring:)
                                         userInfo:nil
                                          repeats:YES];
  for (NSString *mode in [NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                                   NSEventTrackingRunLoopMode, nil]) {
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:mode];
  }
}
