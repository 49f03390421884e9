#include "Src/HXUI/Cocoa/GraphicsState.h"

void PrepareGraphicsContext(NSGraphicsContext* context) {
  CGContextRef port = static_cast<CGContextRef>([context graphicsPort]);
  // Views are flipped, glyphs are not.
  CGContextSetTextMatrix(port, CGAffineTransformMakeScale(1, -1));
  CGContextSetShouldSmoothFonts(port, false);
  CGContextSetShouldSubpixelPositionFonts(port, false);
  CGContextSetShouldSubpixelQuantizeFonts(port, false);
}

bool DrawsFromTop(NSImage* image) { return [image isFlipped]; }

void DrawImage(NSImage* image, NSRect target, NSRect source) {
  [image drawInRect:target
            fromRect:source
           operation:NSCompositeSourceOver
            fraction:1.0
      respectFlipped:DrawsFromTop(image) ? NO : YES
               hints:nil];
}

void CopyPixels(NSImage* image, NSBitmapImageRep* target) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  NSGraphicsContext* context = [NSGraphicsContext graphicsContextWithBitmapImageRep:target];
  [NSGraphicsContext saveGraphicsState];
  [NSGraphicsContext setCurrentContext:context];
  const NSRect all = NSMakeRect(0, 0, static_cast<CGFloat>([target pixelsWide]),
                                static_cast<CGFloat>([target pixelsHigh]));
  // The representation rather than the image: it knows no flipped mark, and the
  // context is not flipped either, so the first row of the bytes is the top one.
  [[image bestRepresentationForRect:all context:context hints:nil] drawInRect:all
                                                                     fromRect:NSZeroRect
                                                                    operation:NSCompositeSourceOver
                                                                     fraction:1.0
                                                               respectFlipped:NO
                                                                        hints:nil];
  [context flushGraphics];
  [NSGraphicsContext restoreGraphicsState];
  [pool drain];
}

void RefreshImage(NSImage* image) { [image recache]; }
