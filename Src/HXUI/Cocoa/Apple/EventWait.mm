#include "Src/HXUI/Cocoa/EventWait.h"

// The platform wakes for every event.
void KeepEventsMoving() {}
