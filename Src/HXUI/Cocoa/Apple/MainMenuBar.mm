#include "Src/HXUI/Cocoa/MainMenuBar.h"

#include "Src/HXUI/Cocoa/Conversions.h"

NSMenu* MakeMainMenuBar(const std::string& title) {
  return [[[NSMenu alloc] initWithTitle:ToNative(title)] autorelease];
}
