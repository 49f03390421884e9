#include "Src/HXUI/Cocoa/NativeWindow.h"

#import <AppKit/AppKit.h>

#include <cmath>

#include "Src/HXUI/Cocoa/Conversions.h"
#import "Src/HXUI/Cocoa/HXTopWindow.h"
#import "Src/HXUI/Cocoa/HXView.h"
#import "Src/HXUI/Cocoa/HXWindowDelegate.h"
#include "Src/HXUI/Cocoa/WindowOwner.h"
#include "Src/HXUI/HXWindow.h"

namespace {

constexpr NSInteger kFloatingLevel = 101;

NSUInteger StyleMask(NativeWindow::Style style) {
  NSUInteger mask =
      style.borderless ? NSBorderlessWindowMask : NSTitledWindowMask | NSClosableWindowMask;
  if (style.resizable) mask |= NSResizableWindowMask;
  return mask;
}

/// Ends a wait for input that is under way: neither AppKit returns from it by
/// itself after a timer. One does for an event, the other for a new timer.
void WakeUp() {
  [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                      location:NSZeroPoint
                                 modifierFlags:0
                                     timestamp:0
                                  windowNumber:0
                                       context:nil
                                       subtype:0
                                         data1:0
                                         data2:0]
           atStart:NO];
  [NSApp performSelector:@selector(self) withObject:nil afterDelay:0];
}

}  // namespace

NSWindow* NativeWindow::Create(HXWindow* owner, HXPoint contentBottom, HXSize size,
                               const std::string& title, Style style) {
  const NSRect content =
      NSMakeRect(contentBottom.x, GetScreenHeight() - contentBottom.y, size.width, size.height);
  HXTopWindow* window = [[HXTopWindow alloc] initWithContentRect:content
                                                       styleMask:StyleMask(style)
                                                         backing:NSBackingStoreBuffered
                                                           defer:NO];
  NSString* nativeTitle = ToNative(title);
  if (nativeTitle != nil) [window setTitle:nativeTitle];
  [window setWorksInModal:style.worksWhenModal ? YES : NO];
  if (style.floating) [window setLevel:kFloatingLevel];

  HXView* view = [[HXView alloc] initWithFrame:[window frame]];
  [view setWindow:owner];
  [window setContentView:view];
  // Keys go to the window's widget as long as no child has asked for them.
  [window setInitialFirstResponder:view];
  [window makeFirstResponder:view];
  [view release];

  [window setReleasedWhenClosed:NO];
  [window setAcceptsMouseMovedEvents:YES];
  return window;
}

HXWindowDelegate* NativeWindow::Attach(NSWindow* window, HXWindow* owner) {
  HXWindowDelegate* windowDelegate = [[HXWindowDelegate alloc] init];
  [windowDelegate setHXWindow:owner];
  [windowDelegate setNSWindow:window];
  [window setDelegate:windowDelegate];
  [[NSNotificationCenter defaultCenter] addObserver:windowDelegate
                                           selector:@selector(onFocusLost:)
                                               name:NSWindowDidResignKeyNotification
                                             object:window];
  return windowDelegate;
}

void NativeWindow::Release(NSWindow* window, HXWindowDelegate* windowDelegate) {
  NSView* content = [window contentView];
  if ([content isKindOfClass:[HXView class]]) [static_cast<HXView*>(content) setWindow:nullptr];
  [[NSNotificationCenter defaultCenter] removeObserver:windowDelegate];
  [windowDelegate setHXWindow:nullptr];
  [window setDelegate:nil];
  // The window may be serving the very event that destroys it.
  [windowDelegate autorelease];
  [window autorelease];
}

NSView* NativeWindow::GetContentView(NSWindow* window) { return [window contentView]; }

void NativeWindow::Close(NSWindow* window) {
  [window setAcceptsMouseMovedEvents:NO];
  [window close];
}

HXPoint NativeWindow::GetFrameOrigin(NSWindow* window) {
  return window == nil ? HXPoint{} : FromNative([window frame].origin);
}

void NativeWindow::SetFrameOrigin(NSWindow* window, HXPoint origin) {
  [window setFrameOrigin:ToNative(origin)];
}

void NativeWindow::SetContentSize(NSWindow* window, HXSize size) {
  [window setContentSize:ToNative(size)];
}

void NativeWindow::SetContentMinSize(NSWindow* window, HXSize size) {
  [window setContentMinSize:ToNative(size)];
}

void NativeWindow::SetVisible(NSWindow* window, bool show) {
  if (show) {
    [window makeKeyAndOrderFront:nil];
  } else {
    [window orderOut:nil];
  }
}

void NativeWindow::OrderFront(NSWindow* window) { [window orderFront:nil]; }
void NativeWindow::SetAlpha(NSWindow* window, float alpha) { [window setAlphaValue:alpha]; }
void NativeWindow::Center(NSWindow* window) {
  [window center];
  // A window of odd size would stand on half pixels, and points with it.
  const NSPoint origin = [window frame].origin;
  [window setFrameOrigin:NSMakePoint(std::floor(origin.x), std::floor(origin.y))];
}
void NativeWindow::Zoom(NSWindow* window) { [window zoom:nil]; }
bool NativeWindow::IsZoomed(NSWindow* window) { return [window isZoomed] == YES; }

bool NativeWindow::IsKey(NSWindow* window) { return window != nil && [NSApp keyWindow] == window; }

std::int32_t NativeWindow::GetScreenHeight() {
  NSArray* screens = [NSScreen screens];
  if ([screens count] == 0) return 0;
  return static_cast<std::int32_t>([[screens objectAtIndex:0] frame].size.height);
}

void* NativeWindow::BeginModal(NSWindow* window, NSView* ownerView) {
  KeepInFront(window, [ownerView window]);
  [window orderFront:nil];
  NSModalSession session = [NSApp beginModalSessionForWindow:window];
  FocusDialog(window);
  return session;
}

bool NativeWindow::ServeModalEvents(void* session) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  const NSInteger state = [NSApp runModalSession:static_cast<NSModalSession>(session)];
  [pool drain];
  return state == NSRunContinuesResponse;
}

void NativeWindow::WaitForInput() {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  @try {
    [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantFuture]];
  } @catch (NSException* exception) {
    // Something of the platform's that was served meanwhile has failed, such as
    // the exchange with its pasteboard server. The dialog has no part in it.
    NSLog(@"While a dialog waited: %@", [exception reason]);
  }
  [pool drain];
}

void NativeWindow::StopModal(NSWindow* window) {
  if (window != nil && [NSApp modalWindow] == window) [NSApp stopModal];
  WakeUp();
}

void NativeWindow::EndModal(void* session) {
  [NSApp endModalSession:static_cast<NSModalSession>(session)];
}
