#pragma once

#import <Foundation/Foundation.h>

class HXCocoaTimer;

/// What a platform timer calls, retained by it. Points back to the timer of
/// the toolkit, which invalidates the platform timer before it goes.
@interface TimerTarget : NSObject {
  HXCocoaTimer* hxTimer;
}

- (id)initWithTimer:(HXCocoaTimer*)timer;
- (void)timerTick:(NSTimer*)timer;

@end
