#include "tests/Src/HXUI/MenuDriver.h"

#include <gtest/gtest.h>

#include "Src/HXUI/Cocoa/Conversions.h"
#import "tests/Src/HXUI/NativeEvents.h"
#import "tests/Src/HXUI/PlatformInput.h"

@interface MenuDriverTarget : NSObject {
 @public
  MenuDriver* driver;
}
- (void)tick:(NSTimer*)timer;
@end

@implementation MenuDriverTarget
- (void)tick:(NSTimer*)timer {
  (void)timer;
  driver->Tick();
}
@end

namespace {

constexpr NSTimeInterval kInterval = 0.01;
constexpr int kTicksInTenSeconds = 1000;

NSMenuView* FindMenuView(NSView* view) {
  if ([view isKindOfClass:[NSMenuView class]]) return static_cast<NSMenuView*>(view);
  for (NSView* child in [view subviews]) {
    NSMenuView* found = FindMenuView(child);
    if (found != nil) return found;
  }
  return nil;
}

/// The view of the menu that is open and is nobody's submenu.
NSMenuView* OpenMenuView() {
  for (NSWindow* window in [NSApp windows]) {
    if (![window isVisible]) continue;
    NSMenuView* view = FindMenuView([window contentView]);
    if (view != nil && [[view menu] supermenu] == nil) return view;
  }
  return nil;
}

void Post(NSEventType type, NSWindow* window) {
  [NSApp postEvent:MouseEvent(type, window, [window mouseLocationOutsideOfEventStream]) atStart:NO];
}

}  // namespace

MenuDriver::MenuDriver(NSInteger item, NSInteger subItem)
    : index(item), subIndex(subItem), ticksLeft(kTicksInTenSeconds) {
  MenuDriverTarget* target = [[[MenuDriverTarget alloc] init] autorelease];
  target->driver = this;
  timer = [[NSTimer timerWithTimeInterval:kInterval
                                   target:target
                                 selector:@selector(tick:)
                                 userInfo:nil
                                  repeats:YES] retain];
  [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSEventTrackingRunLoopMode];
}

MenuDriver::~MenuDriver() {
  [timer invalidate];
  [timer release];
}

void MenuDriver::Tick() {
  NSMenuView* view = OpenMenuView();
  if (view == nil) return;
  if (!wasOpen) {
    Record(view);
    if (whenOpen) whenOpen();
    return;
  }
  if (--ticksLeft == 0) {
    ADD_FAILURE() << "the menu did not close, or did not stand where expected";
    expectedTopLeft.reset();
    clicked = false;
    index = kOutside;
  }
  if (clicked || !StandsWhereExpected(view)) return;
  NSMenuView* submenuView = [[[view menu] attachedMenu] menuRepresentation];
  if (subIndex != kOutside && submenuView != nil && [[submenuView window] isVisible]) {
    ClickWhenReached(submenuView, subIndex);
  } else {
    ClickWhenReached(view, index);
  }
}

void MenuDriver::Record(NSMenuView* view) {
  wasOpen = true;
  for (NSMenuItem* item in [[view menu] itemArray]) {
    titles.push_back(FromNative([item title]));
    ticks.push_back([item state] == NSOnState);
  }
}

bool MenuDriver::StandsWhereExpected(NSMenuView* view) const {
  if (!expectedTopLeft) return true;
  const NSRect item = [view convertRect:[view rectOfItemAtIndex:0] toView:nil];
  const NSPoint corner = NSMakePoint(NSMinX(item), NSMaxY(item));
  return FromNative([[view window] convertBaseToScreen:corner]) == *expectedTopLeft;
}

void MenuDriver::ClickWhenReached(NSMenuView* view, NSInteger wanted) {
  NSWindow* window = [view window];
  if ([view highlightedItemIndex] != wanted || wanted == kOutside) {
    NSPoint onScreen = NSMakePoint(2, 2);
    if (wanted != kOutside) {
      const NSRect item = [view convertRect:[view rectOfItemAtIndex:wanted] toView:nil];
      onScreen = [window convertBaseToScreen:NSMakePoint(NSMidX(item), NSMidY(item))];
    }
    MoveRealPointer(onScreen);
    if ([view highlightedItemIndex] != wanted) return;
  }
  // Moving over the submenu's item is what opens the submenu.
  const bool onlyOpens = subIndex != kOutside && wanted == index && view == OpenMenuView();
  if (onlyOpens) return;
  clicked = true;
  Post(NSLeftMouseUp, window);
  if (wanted != kOutside) return;
  // The first release may be taken as the end of the click that opened the menu.
  Post(NSLeftMouseDown, window);
  Post(NSLeftMouseUp, window);
}
