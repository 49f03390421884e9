#include "Src/HXUI/Cocoa/HXBitmap.h"

#import <AppKit/AppKit.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <span>
#include <utility>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/GraphicsState.h"
#include "Src/HXUI/Cocoa/PictureGuard.h"
#include "Src/HXUI/HXObject.h"

namespace {

std::span<const unsigned char> BytesOf(NSData* data) {
  return {static_cast<const unsigned char*>([data bytes]), [data length]};
}

/// The caller owns one reference; nil for what is no image.
NSImage* Decode(NSData* data) {
  if ([data length] == 0 || !IsSafePicture(BytesOf(data))) return nil;
  @try {
    return [[NSImage alloc] initWithData:data];
  } @catch (NSException*) {
    // Some decoders raise on files that are too short.
    return nil;
  }
}

NSBitmapImageRep* FirstBitmap(NSImage* image) {
  for (NSImageRep* rep in [image representations]) {
    if ([rep isKindOfClass:[NSBitmapImageRep class]]) return static_cast<NSBitmapImageRep*>(rep);
  }
  return nil;
}

/// Over `bytes`, which it does not own. The caller owns one reference.
NSBitmapImageRep* WrapPixels(unsigned char* bytes, HXSize size) {
  return [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:&bytes
                                                 pixelsWide:size.width
                                                 pixelsHigh:size.height
                                              bitsPerSample:8
                                            samplesPerPixel:4
                                                   hasAlpha:YES
                                                   isPlanar:NO
                                             colorSpaceName:NSDeviceRGBColorSpace
                                                bytesPerRow:4 * size.width
                                               bitsPerPixel:32];
}

}  // namespace

HXBitmap::HXBitmap(const unsigned char* bytes, std::uint32_t length) {
  LoadFromBytes(bytes, length);
}

HXBitmap::~HXBitmap() { Replace(nil); }

void HXBitmap::Replace(NSImage* newImage) {
  [image release];
  image = newImage;
  shown.clear();
}

void HXBitmap::LoadFromBytes(const unsigned char* bytes, std::uint32_t length) {
  NSData* data = [[NSData alloc] initWithBytes:bytes length:length];
  Replace(Decode(data));
  [data release];
  [image setFlipped:YES];
}

void HXBitmap::LoadFromFile(const std::string& path) {
  NSString* nativePath = ToNative(path);
  NSData* data = nativePath == nil ? nil : [[NSData alloc] initWithContentsOfFile:nativePath];
  NSImage* loaded = Decode(data);
  [data release];
  Replace(loaded != nil ? loaded : [[NSImage alloc] initWithSize:NSMakeSize(1, 1)]);
}

void HXBitmap::CreateEmpty(HXSize size) {
  Replace([[NSImage alloc] initWithSize:ToNative(size)]);
  [image setFlipped:YES];
}

HXSize HXBitmap::GetPixelSize() const {
  HXSize largest;
  for (NSImageRep* rep in [image representations]) {
    largest.width = std::max(largest.width, static_cast<std::int32_t>([rep pixelsWide]));
    largest.height = std::max(largest.height, static_cast<std::int32_t>([rep pixelsHigh]));
  }
  if (largest.width > 0 && largest.height > 0) return largest;
  return image == nil ? HXSize{} : FromNative([image size]);
}

NSImage* HXBitmap::GetImage() const {
  // Whoever locked the pixels may have written some since.
  if (pixels && HasChanged()) RefreshImage(image);
  return image;
}

bool HXBitmap::HasChanged() const {
  NSBitmapImageRep* rep = FirstBitmap(image);
  const auto size = static_cast<std::size_t>([rep bytesPerPlane] * [rep numberOfPlanes]);
  const unsigned char* bytes = [rep bitmapData];
  if (shown.size() == size && std::equal(shown.begin(), shown.end(), bytes)) return false;
  shown.assign(bytes, bytes + size);
  return true;
}

std::unique_ptr<HXBitmapPixels> HXBitmap::LockPixels() {
  const HXSize size = GetPixelSize();
  if (size.width <= 0 || size.height <= 0) return std::make_unique<HXBitmapPixels>(nullptr);
  if (pixels) {
    NSBitmapImageRep* existing = FirstBitmap(image);
    if (existing != nil) return std::make_unique<HXBitmapPixels>(existing);
  }

  const auto rowCount = static_cast<std::size_t>(size.height);
  std::unique_ptr<unsigned char[]> buffer(
      new (std::nothrow) unsigned char[static_cast<std::size_t>(size.width) * 4 * rowCount]());
  if (buffer == nullptr) return std::make_unique<HXBitmapPixels>(nullptr);
  NSBitmapImageRep* rep = WrapPixels(buffer.get(), size);
  CopyPixels(image, rep);

  NSImage* replacement = [[NSImage alloc] initWithSize:ToNative(size)];
  [replacement addRepresentation:rep];
  [replacement setFlipped:YES];
  Replace(replacement);
  pixels = std::move(buffer);
  [rep release];
  return std::make_unique<HXBitmapPixels>(rep);
}

void HXBitmap::CopyViewToBitmap(HXObject& widget, HXBitmap& bitmap) {
  NSView* view = widget.GetNativeView();
  if ([view window] == nil) return;
  [[view window] makeKeyAndOrderFront:nil];
  [view lockFocus];
  const NSRect bounds = [view bounds];
  NSBitmapImageRep* rep = [[NSBitmapImageRep alloc] initWithFocusedViewRect:bounds];
  [view unlockFocus];
  bitmap.CreateEmpty(FromNative(bounds.size));
  if (rep != nil) [bitmap.image addRepresentation:rep];
  [rep release];
}
