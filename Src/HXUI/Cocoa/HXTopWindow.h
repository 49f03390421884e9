#pragma once

#import <AppKit/AppKit.h>

/// The platform window of an `HXWindow`, owned by it. Becomes key and main
/// even without a title bar, until it has been closed. Of the keys it offers its views as
/// equivalents only those typed with Command, so that a plain key reaches no other widget than the
/// one that has the keyboard; while nobody has it, keys are dropped.
@interface HXTopWindow : NSWindow {
  BOOL worksInModal;
  BOOL hasClosed;
}

/// Whether the window stays usable while another one runs modally.
- (void)setWorksInModal:(BOOL)works;

@end
