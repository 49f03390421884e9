#include "Src/HXUI/Cocoa/SubviewRemoval.h"

#import <AppKit/AppKit.h>

void RemoveSubviews(NSView* view) {
  for (NSView* each in [[[view subviews] copy] autorelease]) {
    [each removeFromSuperviewWithoutNeedingDisplay];
  }
}
