#include "installer/Cocoa/MainMenuBar.h"

/// Other desktops have no menu bar at the top of the screen; a bar of ours
/// would lie over whatever they have there.
@interface HiddenMenuBar : NSMenu
@end

@implementation HiddenMenuBar
- (void)display {
}
@end

NSMenu* MakeMainMenuBar(NSString* title) {
  return [[[HiddenMenuBar alloc] initWithTitle:title] autorelease];
}
