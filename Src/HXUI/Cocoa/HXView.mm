#import "Src/HXUI/Cocoa/HXView.h"

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/HXEventSinks.h"
#include "Src/HXUI/HXMouseRouter.h"
#include "Src/HXUI/HXObject.h"
#include "Src/HXUI/HXObjectGuard.h"

namespace {

bool HasControl(NSEvent* event) { return ([event modifierFlags] & NSControlKeyMask) != 0; }

/// Control turns the left button into the right one.
MouseKind WithControl(MouseKind left, NSEvent* event) {
  return static_cast<MouseKind>(left + (HasControl(event) ? 3 : 0));
}

/// The first UTF-16 unit of the key, 0 for a key that types nothing.
unichar KeyOf(NSEvent* event) {
  NSString* characters = [event charactersIgnoringModifiers];
  return [characters length] > 0 ? [characters characterAtIndex:0] : 0;
}

/// 120 units a line, cut to an integer. Less than two units is a finger resting
/// on the wheel, not a turn.
std::int64_t WheelUnits(double lines) {
  const double units = lines * 120.0;
  return units > -2.0 && units < 2.0 ? 0 : static_cast<std::int64_t>(units);
}

NSArray* DroppedPaths(id<NSDraggingInfo> dragging) {
  NSPasteboard* pasteboard = [dragging draggingPasteboard];
  if (![[pasteboard types] containsObject:NSFilenamesPboardType]) return nil;
  id paths = [pasteboard propertyListForType:NSFilenamesPboardType];
  return [paths isKindOfClass:[NSArray class]] ? paths : nil;
}

}  // namespace

@implementation HXView

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self == nil) return nil;
  trackTag = [self addTrackingRect:[self bounds] owner:self userData:nullptr assumeInside:NO];
  [self setPostsBoundsChangedNotifications:YES];
  [self setPostsFrameChangedNotifications:YES];
  NSNotificationCenter* center = [NSNotificationCenter defaultCenter];
  [center addObserver:self
             selector:@selector(onSize:)
                 name:NSViewFrameDidChangeNotification
               object:self];
  [center addObserver:self
             selector:@selector(onSize:)
                 name:NSViewBoundsDidChangeNotification
               object:self];
  return self;
}

- (void)dealloc {
  [self removeTags];
  [super dealloc];
}

- (void)removeTags {
  // By name and object: to look for everything that a view observes takes time for each view
  // there is.
  NSNotificationCenter* center = [NSNotificationCenter defaultCenter];
  [center removeObserver:self name:NSViewFrameDidChangeNotification object:self];
  [center removeObserver:self name:NSViewBoundsDidChangeNotification object:self];
  if (trackTag != 0) [self removeTrackingRect:trackTag];
  trackTag = 0;
}

- (HXObject*)getObject {
  return win;
}

- (void)setWindow:(HXObject*)object {
  win = object;
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)acceptsFirstResponder {
  return YES;
}

- (BOOL)becomeFirstResponder {
  // Whoever gave up the keyboard to this view may have deleted its widget.
  return win != nullptr;
}

- (BOOL)acceptsFirstMouse:(NSEvent*)event {
  (void)event;
  return YES;
}

- (void)drawRect:(NSRect)dirty {
  (void)dirty;
  if (win != nullptr && !win->IsFrozen()) win->Draw();
}

- (void)onSize:(NSNotification*)notification {
  (void)notification;
  [self setNeedsDisplay:YES];
  if (trackTag != 0) [self removeTrackingRect:trackTag];
  trackTag = [self addTrackingRect:[self bounds] owner:self userData:nullptr assumeInside:NO];
  if (win != nullptr) win->ResizeContent();
}

// Mouse

- (void)mouseDown:(NSEvent*)event {
  [self handleMouseEvent:WithControl([event clickCount] == 2 ? kLeftDouble : kLeftDown, event)];
}

- (void)mouseUp:(NSEvent*)event {
  [self handleMouseEvent:WithControl(kLeftUp, event)];
}

- (void)rightMouseDown:(NSEvent*)event {
  (void)event;
  [self handleMouseEvent:kRightDown];
}

- (void)rightMouseUp:(NSEvent*)event {
  (void)event;
  [self handleMouseEvent:kRightUp];
}

- (void)otherMouseDown:(NSEvent*)event {
  (void)event;
  [self handleMouseEvent:kOtherDown];
}

- (void)otherMouseUp:(NSEvent*)event {
  (void)event;
  [self handleMouseEvent:kOtherUp];
}

- (void)mouseEntered:(NSEvent*)event {
  (void)event;
  [self handleMouseEvent:kMouseEntered];
}

- (void)mouseExited:(NSEvent*)event {
  (void)event;
  [self handleMouseEvent:kMouseExited];
}

- (void)mouseMoved:(NSEvent*)event {
  if (HXMouseRouter::MoveToCaptureOwner()) return;
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  if (NSMouseInRect(point, [self bounds], [self isFlipped])) {
    [self handleMouseMoved:event];
  } else {
    [super mouseMoved:event];
  }
}

- (void)mouseDragged:(NSEvent*)event {
  [self mouseMoved:event];
}

- (void)rightMouseDragged:(NSEvent*)event {
  [self mouseMoved:event];
}

- (void)otherMouseDragged:(NSEvent*)event {
  [self mouseMoved:event];
}

- (void)handleMouseMoved:(NSEvent*)event {
  // Once here rather than into each child: nobody scales or turns their bounds.
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  if (win != nullptr) {
    for (HXObject* child : win->GetChildren()) {
      NSView* view = child->GetNativeView();
      if (view == nil || !NSMouseInRect(point, [view frame], YES)) continue;
      if (![view isKindOfClass:[HXView class]] || [view superview] != self || [view isHidden])
        continue;
      [static_cast<HXView*>(view) handleMouseMoved:event];
      return;
    }
  }
  [self handleMouseEvent:kMouseMove];
}

- (void)handleMouseEvent:(MouseKind)kind {
  // The widget may be deleted by what it does with the event, and this view with it.
  [[self retain] autorelease];
  HXMouseRouter::Handle(win, kind);
}

- (void)sendToMouseHook:(HXObject*)widget event:(MouseKind)kind {
  if (widget != nullptr) widget->Notify(kind);
}

// Wheel and keys

- (BOOL)sendToEventSink:(std::uint32_t)kind param:(std::int64_t)parameter {
  return HXEventSinks::Send(win, kind, parameter) ? YES : NO;
}

- (void)scrollWheel:(NSEvent*)event {
  [[self retain] autorelease];
  [self sendToEventSink:kWheel param:WheelUnits([event deltaY])];
}

- (void)keyDown:(NSEvent*)event {
  [[self retain] autorelease];
  const unichar key = KeyOf(event);
  if (![self sendToEventSink:kKeyDown param:key]) return;
  if (win != nullptr && !win->OnKeyDown(key)) return;
  if (win != nullptr) [self interpretKeyEvents:[NSArray arrayWithObject:event]];
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
  // The platform offers it to every view there is, also to those that nobody sees.
  if ([self isHiddenOrHasHiddenAncestor]) return NO;
  [[self retain] autorelease];
  const unichar key = KeyOf(event);
  if (![self sendToEventSink:kKeyDown param:key]) return YES;
  if (win != nullptr && !win->OnKeyDown(key)) return NO;
  return [super performKeyEquivalent:event];
}

- (void)keyUp:(NSEvent*)event {
  [[self retain] autorelease];
  [self sendToEventSink:kKeyUp param:KeyOf(event)];
}

- (BOOL)resignFirstResponder {
  if (win != nullptr) win->OnFocusLost();
  return YES;
}

// Dropped files

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)dragging {
  NSArray* types = [[dragging draggingPasteboard] types];
  return [types containsObject:NSFilenamesPboardType] ? NSDragOperationLink : NSDragOperationNone;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)dragging {
  NSArray* paths = DroppedPaths(dragging);
  if (win == nullptr || [paths count] == 0) return NO;
  id path = [paths objectAtIndex:0];
  if (![path isKindOfClass:[NSString class]]) return NO;
  return win->OnDropFile(FromNative(path).c_str()) ? YES : NO;
}

@end
