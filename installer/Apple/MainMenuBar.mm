#include "installer/Cocoa/MainMenuBar.h"

NSMenu* MakeMainMenuBar(NSString* title) {
  return [[[NSMenu alloc] initWithTitle:title] autorelease];
}
