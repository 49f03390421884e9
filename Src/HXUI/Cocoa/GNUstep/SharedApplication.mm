#include "Src/HXUI/Cocoa/SharedApplication.h"

#import <AppKit/AppKit.h>

// GNUstep looks for a picture of its own under every ending that it could read,
// in one folder after the other. The 200 or so endings of ImageMagick make that
// tens of thousands of paths for each name, and half of the time until a window
// opens; asking for them also loads all of ImageMagick's decoders. The pictures
// that every application needs are therefore found, for good, while ImageMagick
// is out of the way. Afterwards it reads files as before.
void MakeSharedApplication() {
  const Class manyFormats = NSClassFromString(@"GSImageMagickImageRep");
  if (manyFormats != Nil) [NSImageRep unregisterImageRepClass:manyFormats];
  [NSApplication sharedApplication];
  // For menu items, which ask again as long as these are not known.
  for (NSString *name in
       [NSArray arrayWithObjects:@"NSMenuCheckmark", @"NSMenuMixedState", @"NSMenuArrow",
                                 @"NSHighlightedMenuArrow", nil]) {
    [NSImage imageNamed:name];
  }
  if (manyFormats != Nil) [NSImageRep registerImageRepClass:manyFormats];
}
