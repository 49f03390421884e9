#include "Src/HXUI/Cocoa/MenuTracking.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/Conversions.h"

void MenuTracking::Run(NSPopUpButtonCell* cell, HXRect frame, NSView* view) {
  [cell performClickWithFrame:ToNative(frame) inView:view];
}
