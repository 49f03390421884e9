#pragma once

#import <AppKit/AppKit.h>

class GalleryWindow;

/// The application's delegate; owns the gallery's window and ends the
/// application when it is closed.
@interface GalleryAppDelegate : NSObject {
  GalleryWindow* window;
}
@end
