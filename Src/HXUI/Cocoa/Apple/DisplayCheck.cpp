#include "Src/HXUI/Cocoa/DisplayCheck.h"

// The window server starts applications only where it can show them.
bool IsDisplayAvailable() { return true; }
