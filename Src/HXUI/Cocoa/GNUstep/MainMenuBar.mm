#include "Src/HXUI/Cocoa/MainMenuBar.h"

#include "Src/HXUI/Cocoa/Conversions.h"

/// Other desktops have no menu bar at the top of the screen; a bar of ours
/// would lie over whatever they have there.
@interface HiddenMenuBar : NSMenu
@end

@implementation HiddenMenuBar
- (void)display {
}
@end

NSMenu* MakeMainMenuBar(const std::string& title) {
  return [[[HiddenMenuBar alloc] initWithTitle:ToNative(title)] autorelease];
}
