#include "Src/HXUI/Cocoa/WindowOwner.h"

// A window that a modal session blocks is not raised by clicks here.
void KeepInFront(NSWindow*, NSWindow*) {}

// A modal session has made it the key window.
void FocusDialog(NSWindow*) {}
