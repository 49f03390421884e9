#include "Src/HXUI/Cocoa/PointerTrail.h"

// Nothing but events moves it here.
NSPoint LastSeenPointer(NSWindow*) { return NSZeroPoint; }
void SetLastSeenPointer(NSWindow*, NSPoint) {}
