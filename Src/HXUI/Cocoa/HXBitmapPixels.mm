#include "Src/HXUI/Cocoa/HXBitmapPixels.h"

#import <AppKit/AppKit.h>

unsigned char* HXBitmapPixels::GetData() const { return [rep bitmapData]; }
int HXBitmapPixels::GetBytesPerRow() const { return static_cast<int>([rep bytesPerRow]); }
int HXBitmapPixels::GetBitsPerPixel() const { return static_cast<int>([rep bitsPerPixel]); }

HXSize HXBitmapPixels::GetPixelSize() const {
  return {static_cast<std::int32_t>([rep pixelsWide]), static_cast<std::int32_t>([rep pixelsHigh])};
}
