#import "Src/HXUI/Cocoa/HXMenuItem.h"

@implementation HXMenuItem

- (void)setIndex:(std::int32_t)newIndex pointer:(std::int32_t*)pointer {
  index = newIndex;
  indexPtr = pointer;
}

- (void)onItemClick:(id)sender {
  (void)sender;
  if (indexPtr != nullptr) *indexPtr = index;
}

@end
