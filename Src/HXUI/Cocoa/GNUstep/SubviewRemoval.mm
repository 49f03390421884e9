#include "Src/HXUI/Cocoa/SubviewRemoval.h"

#import <AppKit/AppKit.h>

@interface NSView (SubviewRemoval)
- (void)removeSubviews;
@end

@implementation NSView (SubviewRemoval)
// Each removal walks through the whole list of subviews, whichever is removed;
// with thousands of them that takes longer than everything else. So each stands
// in a list of its own when its turn comes.
- (void)removeSubviews {
  NSMutableArray* all = _sub_views;
  _sub_views = [[NSMutableArray alloc] init];
  for (NSView* each in all) {
    [_sub_views addObject:each];
    [each removeFromSuperviewWithoutNeedingDisplay];
  }
  [all release];
}
@end

void RemoveSubviews(NSView* view) { [view removeSubviews]; }
