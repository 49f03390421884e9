#include "Src/HXUI/Cocoa/SharedApplication.h"

#import <AppKit/AppKit.h>

void MakeSharedApplication() { [NSApplication sharedApplication]; }
