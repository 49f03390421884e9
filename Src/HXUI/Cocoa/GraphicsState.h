#pragma once

#import <AppKit/AppKit.h>

// What the two AppKits do differently when they draw. For Objective-C++ only;
// main thread only.

/// Sets up what only one of the two AppKits needs before the toolkit draws
/// into `context`: upright glyphs and unsmoothed fonts.
void PrepareGraphicsContext(NSGraphicsContext* context);

/// True when drawing `image` in a flipped view obeys the image's own flipped
/// mark: its source rectangles then count from the top, and it stands upright
/// without further ado.
bool DrawsFromTop(NSImage* image);

/// Draws the part `source`, counted from the image's own origin, over all of
/// `target` in the current context; all of the image when `source` is zero.
/// Blends by the image's alpha.
void DrawImage(NSImage* image, NSRect target, NSRect source);

/// Draws the whole image over all of `target`, which is 8-bit premultiplied
/// RGBA without padding and transparent so far. An image without a
/// representation leaves it so.
void CopyPixels(NSImage* image, NSBitmapImageRep* target);

/// Makes the next drawing of `image` show what has been written into the bytes
/// of its bitmap since the last one.
void RefreshImage(NSImage* image);
