#import "Src/HXUI/Cocoa/TimerTarget.h"

#include "Src/HXUI/Cocoa/HXCocoaTimer.h"

@implementation TimerTarget

- (id)initWithTimer:(HXCocoaTimer*)timer {
  self = [super init];
  if (self != nil) hxTimer = timer;
  return self;
}

- (void)timerTick:(NSTimer*)timer {
  (void)timer;
  hxTimer->Tick();
}

@end
