#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>

/// A menu item that is its own target: a click writes `index` through
/// `indexPtr`. Owned by its menu.
@interface HXMenuItem : NSMenuItem {
  std::int32_t index;
  std::int32_t* indexPtr;
}

/// `pointer` must outlive the item.
- (void)setIndex:(std::int32_t)newIndex pointer:(std::int32_t*)pointer;
- (void)onItemClick:(id)sender;

@end
