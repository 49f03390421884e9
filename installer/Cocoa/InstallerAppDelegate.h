#pragma once

#import <AppKit/AppKit.h>

#include <cstddef>

#include "installer/InstallerUI.h"

/// The application's delegate; owns the wizard, which lives in it, and decides
/// when the application ends.
@interface InstallerAppDelegate : NSObject {
  // Not every Objective-C runtime constructs and destroys C++ members, so the
  // wizard's place is kept here and `init` and `dealloc` do it.
  alignas(InstallerUI) std::byte ui[sizeof(InstallerUI)];
}
@end
