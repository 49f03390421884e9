#include "Src/HXUI/Cocoa/HXCocoaTimer.h"

#import <Foundation/Foundation.h>

#include "Src/HXUI/Assert.h"
#import "Src/HXUI/Cocoa/TimerTarget.h"
#include "Src/HXUI/HXObject.h"

HXCocoaTimer::~HXCocoaTimer() { Stop(); }

void HXCocoaTimer::SetOwner(HXObject* owner, std::uint32_t ownerTimerId) {
  win = owner;
  timerId = ownerTimerId;
}

void HXCocoaTimer::Start(std::uint32_t intervalMs, bool once) {
  if (win == nullptr) HXAssertFailed("Start", "win", "Src/HXUI/Cocoa/HXCocoaTimer", 33);
  if (running) return;
  interval = intervalMs;
  oneShot = once;
  TimerTarget* target = [[[TimerTarget alloc] initWithTimer:this] autorelease];
  timer = [NSTimer timerWithTimeInterval:static_cast<float>(interval) * 0.001F
                                  target:target
                                selector:@selector(timerTick:)
                                userInfo:nil
                                 repeats:oneShot ? NO : YES];
  // The run loop retains the timer until it is invalidated.
  [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
  running = true;
}

void HXCocoaTimer::Stop() {
  if (!running) return;
  [timer invalidate];
  timer = nil;
  running = false;
}

void HXCocoaTimer::Tick() {
  if (oneShot) Stop();
  win->OnTimer(static_cast<int>(timerId));
}
