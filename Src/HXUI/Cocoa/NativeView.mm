#include "Src/HXUI/Cocoa/NativeView.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/Conversions.h"
#import "Src/HXUI/Cocoa/HXView.h"
#include "Src/HXUI/Cocoa/SubviewRemoval.h"
#include "Src/HXUI/HXObject.h"

@interface NSView (HXRedraw)
- (void)markForRedraw;
@end

@implementation NSView (HXRedraw)
- (void)markForRedraw {
  [self setNeedsDisplay:YES];
}
@end

namespace {

HXView* AsHXView(NSView* view) {
  return [view isKindOfClass:[HXView class]] ? static_cast<HXView*>(view) : nil;
}

}  // namespace

NSView* NativeView::Create(HXObject* widget, HXRect frame) {
  HXView* view = [[HXView alloc] initWithFrame:ToNative(frame)];
  [view setWindow:widget];
  return view;
}

void NativeView::Destroy(NSView* view) {
  HXView* own = AsHXView(view);
  [own setWindow:nullptr];
  // While the view waits for its last release it must not hear of anything.
  [own removeTags];
  [view removeFromSuperview];
  // All at once: their widgets, which are destroyed next, would take them out one by one.
  RemoveSubviews(own);
  // The window may be about to hand this view the event that destroys it.
  [view autorelease];
}

void NativeView::AddSubview(NSView* parent, NSView* child) {
  if (child != nil) [parent addSubview:child];
}

void NativeView::RemoveFromParent(NSView* view) { [view removeFromSuperview]; }

HXPoint NativeView::GetPosition(NSView* view) {
  return view == nil ? HXPoint{} : FromNative([view frame].origin);
}

void NativeView::SetPosition(NSView* view, HXPoint position) {
  [view setFrameOrigin:ToNative(position)];
  [view setNeedsDisplay:YES];
}

void NativeView::SetSize(NSView* view, HXSize size) {
  [view setFrameSize:ToNative(size)];
  [view setNeedsDisplay:YES];
}

HXSize NativeView::GetSize(NSView* view) {
  return view == nil ? HXSize{} : FromNative([view bounds].size);
}

bool NativeView::IsInside(NSView* view, NSView* ancestor) {
  return ancestor != nil && [view isDescendantOf:ancestor];
}

HXPoint NativeView::GetOffset(NSView* view, NSView* ancestor) {
  if (view == nil || ancestor == nil) return {};
  return FromNative([view convertPoint:NSZeroPoint toView:ancestor]);
}

void NativeView::SetHidden(NSView* view, bool hidden) { [view setHidden:hidden ? YES : NO]; }

void NativeView::MarkForRedraw(NSView* view) {
  if ([NSThread isMainThread]) {
    [view setNeedsDisplay:YES];
    return;
  }
  NSArray* modes = [NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                             NSEventTrackingRunLoopMode, nil];
  [view performSelectorOnMainThread:@selector(markForRedraw)
                         withObject:nil
                      waitUntilDone:NO
                              modes:modes];
}

void NativeView::RedrawNow(NSView* view) { [view displayIfNeeded]; }

void NativeView::Focus(NSView* view) {
  NSWindow* window = [view window];
  if ([window firstResponder] != view) [window makeFirstResponder:view];
}

void NativeView::Unfocus(NSView* view) {
  NSWindow* window = [view window];
  if (view != nil && [window firstResponder] == view) [window makeFirstResponder:nil];
}

bool NativeView::IsFocused(NSView* view) {
  NSWindow* window = [view window];
  return window != nil && [window firstResponder] == view && [window isKeyWindow];
}

HXObject* NativeView::GetFocusedObject() {
  NSResponder* responder = [[NSApp keyWindow] firstResponder];
  if (![responder isKindOfClass:[HXView class]]) return nullptr;
  return [static_cast<HXView*>(responder) getObject];
}

void NativeView::SetCursorRectsEnabled(NSView* view, bool enable) {
  if (enable) {
    [[view window] enableCursorRects];
  } else {
    [[view window] disableCursorRects];
  }
}

bool NativeView::AreCursorRectsEnabled(NSView* view) {
  return [[view window] areCursorRectsEnabled] == YES;
}

HXPoint NativeView::GetMousePosition(NSView* view, bool screen) {
  if (screen) return FromNative([NSEvent mouseLocation]);
  NSWindow* window = [view window];
  if (window == nil) return {};
  return FromNative([view convertPoint:[window mouseLocationOutsideOfEventStream] fromView:nil]);
}

HXPoint NativeView::ClientToScreen(NSView* view, HXPoint point) {
  NSWindow* window = [view window];
  if (window == nil) return {};
  const NSPoint base = [view convertPoint:ToNative(point) toView:nil];
  const NSRect onScreen = [window convertRectToScreen:NSMakeRect(base.x, base.y, 0, 0)];
  return FromNative(onScreen.origin);
}

void NativeView::SetAcceptsFileDrops(NSView* view, bool accept) {
  if (accept) {
    [view registerForDraggedTypes:[NSArray arrayWithObject:NSFilenamesPboardType]];
  } else {
    [view unregisterDraggedTypes];
  }
}
