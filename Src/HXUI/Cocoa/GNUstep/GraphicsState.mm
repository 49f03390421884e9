#include "Src/HXUI/Cocoa/GraphicsState.h"

#include <cmath>

namespace {

/// The bitmap with the most pixels; nil without any.
NSBitmapImageRep* LargestBitmap(NSImage* image) {
  NSBitmapImageRep* largest = nil;
  NSInteger most = 0;
  for (NSImageRep* rep in [image representations]) {
    const NSInteger count = [rep pixelsWide] * [rep pixelsHigh];
    if (count <= most || ![rep isKindOfClass:[NSBitmapImageRep class]]) continue;
    largest = static_cast<NSBitmapImageRep*>(rep);
    most = count;
  }
  return largest;
}

unsigned char ToByte(CGFloat component) {
  return static_cast<unsigned char>(std::lround(component * 255));
}

bool IsPlainRgb(NSBitmapImageRep* rep) {
  NSString* space = [rep colorSpaceName];
  return [rep bitsPerSample] == 8 && ![rep isPlanar] &&
         [rep bitsPerPixel] == ([rep hasAlpha] ? 32 : 24) &&
         ([rep bitmapFormat] & NSAlphaFirstBitmapFormat) == 0 &&
         ([space isEqualToString:NSDeviceRGBColorSpace] ||
          [space isEqualToString:NSCalibratedRGBColorSpace]);
}

/// What nearly every picture is, at its own size.
void CopyPlainRgb(NSBitmapImageRep* source, unsigned char* target) {
  const NSInteger step = [source bitsPerPixel] / 8;
  const bool premultiply = ([source bitmapFormat] & NSAlphaNonpremultipliedBitmapFormat) != 0;
  for (NSInteger y = 0; y < [source pixelsHigh]; ++y) {
    const unsigned char* pixel = [source bitmapData] + y * [source bytesPerRow];
    for (NSInteger x = 0; x < [source pixelsWide]; ++x, pixel += step, target += 4) {
      const int alpha = step == 4 ? pixel[3] : 255;
      const int factor = premultiply ? alpha : 255;
      for (int i = 0; i < 3; ++i) {
        target[i] = static_cast<unsigned char>((pixel[i] * factor + 127) / 255);
      }
      target[3] = static_cast<unsigned char>(alpha);
    }
  }
}

void CopyPixel(NSColor* color, unsigned char* target) {
  NSColor* rgb = [color colorUsingColorSpaceName:NSDeviceRGBColorSpace];
  const CGFloat alpha = [rgb alphaComponent];
  // Where nothing shows the platform has no colour to give.
  if (rgb == nil || !(alpha > 0)) return;
  target[0] = ToByte([rgb redComponent] * alpha);
  target[1] = ToByte([rgb greenComponent] * alpha);
  target[2] = ToByte([rgb blueComponent] * alpha);
  target[3] = ToByte(alpha);
}

/// What the platform has made of the image's only representation when it drew that first; nil when
/// there is something to choose.
NSCachedImageRep* OnlyCache(NSImage* image) {
  NSArray* reps = [image representations];
  NSImageRep* last = [reps lastObject];
  if ([reps count] != 2 || ![last isKindOfClass:[NSCachedImageRep class]]) return nil;
  return NSEqualSizes([last size], [image size]) ? static_cast<NSCachedImageRep*>(last) : nil;
}

}  // namespace

// Glyphs stand upright in flipped views and fonts have no smoothing of their own.
void PrepareGraphicsContext(NSGraphicsContext*) {}

// The mark changes nothing here.
bool DrawsFromTop(NSImage*) { return false; }

// Before every drawing the platform goes through the image's representations for the best one,
// which takes longer than the drawing.
void DrawImage(NSImage* image, NSRect target, NSRect source) {
  constexpr NSCompositingOperation kOver = NSCompositeSourceOver;
  if (NSCachedImageRep* cache = OnlyCache(image)) {
    [cache drawInRect:target
              fromRect:source
             operation:kOver
              fraction:1.0
        respectFlipped:YES
                 hints:nil];
  } else {
    [image drawInRect:target
              fromRect:source
             operation:kOver
              fraction:1.0
        respectFlipped:YES
                 hints:nil];
  }
}

// A graphics context on a bitmap can be made here, but draws nothing and crashes when flushed.
void CopyPixels(NSImage* image, NSBitmapImageRep* target) {
  NSBitmapImageRep* source = LargestBitmap(image);
  if (source == nil) return;
  const NSInteger width = [target pixelsWide];
  const NSInteger height = [target pixelsHigh];
  unsigned char* pixel = [target bitmapData];
  if (IsPlainRgb(source) && [source pixelsWide] == width && [source pixelsHigh] == height) {
    CopyPlainRgb(source, pixel);
    return;
  }
  for (NSInteger y = 0; y < height; ++y) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    const NSInteger sourceY = y * [source pixelsHigh] / height;
    for (NSInteger x = 0; x < width; ++x, pixel += 4) {
      CopyPixel([source colorAtX:x * [source pixelsWide] / width y:sourceY], pixel);
    }
    [pool drain];
  }
}

// Not by dropping the cache, nor by doing without: for every new cache, be it for a single drawing,
// the platform makes a window and never gives all of its memory back.
void RefreshImage(NSImage* image) {
  NSBitmapImageRep* rep = LargestBitmap(image);
  if (rep == nil) return;
  NSRect all = NSZeroRect;
  all.size = [image size];
  [image lockFocusOnRepresentation:rep];
  [image drawRepresentation:rep inRect:all];
  [image unlockFocus];
}
