#include "Src/HXUI/Cocoa/PointerTrail.h"

// Nothing but events moves it here.
PointerTrail::PointerTrail(NSWindow* keptWindow) : window(keptWindow) {}
PointerTrail::~PointerTrail() = default;
