#include "bench/Cocoa/Display.h"

#include <chrono>
#include <cstdio>
#include <cstring>

#include "bench/GNUstep/XServer.h"

namespace {

constexpr auto kPatience = std::chrono::seconds(30);

bool ServeOne(NSDate* until) {
  NSEvent* event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                      untilDate:until
                                         inMode:NSDefaultRunLoopMode
                                        dequeue:YES];
  if (event == nil) return false;
  [NSApp sendEvent:event];
  return true;
}

}  // namespace

bool Display::ServeUntil(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    ServeOne([NSDate dateWithTimeIntervalSinceNow:0.01]);
    [pool drain];
  }
  return true;
}

void Display::ServeAll() {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  XServer::Finish();
  while (ServeOne([NSDate dateWithTimeIntervalSinceNow:0.02])) {
  }
  [pool drain];
}

bool Display::Show(NSWindow* window, CGFloat x) {
  [window center];
  [window setFrameOrigin:NSMakePoint(x, [window frame].origin.y)];
  [window makeKeyAndOrderFront:nil];
  if (!ServeUntil([window] { return [window isKeyWindow] && [window isVisible]; })) {
    std::fputs("A window did not appear.\n", stderr);
    return false;
  }
  ServeAll();
  return true;
}

void Display::DrawAll(NSWindow* window) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  [window display];
  [window flushWindow];
  XServer::Finish();
  [pool drain];
}

NSBitmapImageRep* Display::Pixels(NSView* view) {
  [view lockFocus];
  NSBitmapImageRep* pixels =
      [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
  [view unlockFocus];
  return pixels;
}

bool Display::AreIdentical(NSBitmapImageRep* first, NSBitmapImageRep* second) {
  const NSInteger width = [first pixelsWide];
  const NSInteger height = [first pixelsHigh];
  if (width == 0 || [second pixelsWide] != width || [second pixelsHigh] != height) {
    std::fputs("The drawings are not of one size.\n", stderr);
    return false;
  }
  const NSInteger step = [first bitsPerPixel] / 8;
  for (NSInteger y = 0; y < height; ++y) {
    for (NSInteger x = 0; x < width; ++x) {
      const unsigned char* a = [first bitmapData] + y * [first bytesPerRow] + x * step;
      const unsigned char* b = [second bitmapData] + y * [second bytesPerRow] + x * step;
      if (std::memcmp(a, b, 3) == 0) continue;
      std::fprintf(stderr, "The drawings differ at %ld, %ld: %d %d %d and %d %d %d.\n",
                   static_cast<long>(x), static_cast<long>(y), a[0], a[1], a[2], b[0], b[1], b[2]);
      return false;
    }
  }
  return true;
}
