#include "Src/HXUI/Cocoa/HXCocoaDC.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Assert.h"
#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/FontLookup.h"
#include "Src/HXUI/Cocoa/GraphicsState.h"
#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "Src/HXUI/Cocoa/TextExtents.h"

namespace {

/// Lay out from the line-fragment origin, without screen-font substitution, and truncate the last
/// visible line. Not every AppKit has names for all of these bits.
constexpr auto kDrawOptions = static_cast<NSStringDrawingOptions>(37);
/// Text stands this far to the right of where it is asked for, and this far above.
constexpr CGFloat kTextShift = 1;
constexpr CGFloat kTextLift = 2;
/// Unwrapped text that ends at a point is laid out to the right edge of this box.
constexpr CGFloat kRightBoxWidth = 4000;
constexpr CGFloat kRightBoxHeight = 100;
/// Stands for "no bound" when measuring.
constexpr CGFloat kUnbounded = 1.0e6;

/// As much of the beginning of `text` as fits into `box` with an ellipsis after it. Not every
/// AppKit heeds the option that asks for this. nil when not even one line fits.
NSString* Truncated(NSString* text, NSSize box, NSDictionary* attributes) {
  const NSSize column = NSMakeSize(box.width, kUnbounded);
  NSString* fitting = nil;
  NSUInteger shortest = 0;
  NSUInteger longest = [text length];
  while (shortest < longest) {
    const NSUInteger middle = (shortest + longest) / 2;
    const NSUInteger end = [text rangeOfComposedCharacterSequenceAtIndex:middle].location;
    NSString* candidate = [[text substringToIndex:end] stringByAppendingString:@"\u2026"];
    if (TextExtents::MeasureOnce(candidate, column, attributes).height <= box.height) {
      fitting = candidate;
      shortest = middle + 1;
    } else {
      longest = middle;
    }
  }
  return fitting;
}

/// `height` is what all of the text takes in the width of the box.
void DrawInBox(NSString* text, CGFloat height, NSRect box, NSDictionary* attributes) {
  NSString* fitting = height <= box.size.height ? text : Truncated(text, box.size, attributes);
  if (fitting != nil) {
    [fitting drawWithRect:box options:kDrawOptions attributes:attributes];
    return;
  }
  // In a box that is too low for its first line some platforms put the text anywhere.
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(box);
  box.size.height = kUnbounded;
  [text drawWithRect:box options:kDrawOptions attributes:attributes];
  [NSGraphicsContext restoreGraphicsState];
}

/// `source` counts from the image's own origin; all of it when zero.
void DrawImage(NSImage* image, NSRect target, NSRect source) {
  [image drawInRect:target
            fromRect:source
           operation:NSCompositeSourceOver
            fraction:1.0
      respectFlipped:DrawsFromTop(image) ? NO : YES
               hints:nil];
}

/// A negative extent would turn the rectangle over instead of emptying it.
bool IsEmpty(HXRect rect) { return rect.width <= 0 || rect.height <= 0; }

}  // namespace

HXCocoaDC::HXCocoaDC(HXObject* drawnWidget) : widget(drawnWidget) {
  if (widget == nullptr) return;
  context = [NSGraphicsContext currentContext];
  if (context == nil) return;
  PrepareGraphicsContext(context);
  [context setShouldAntialias:NO];
  SetStroke({0, 0, 0, 0}, 1.0F);
}

HXCocoaDC::HXCocoaDC(HXObject* drawnWidget, bool) : HXCocoaDC(drawnWidget) {}

HXCocoaDC::~HXCocoaDC() {
  [strokeColor release];
  [fillColor release];
  [textColor release];
  [font release];
}

void HXCocoaDC::SetStroke(HXColor color, float lineWidth) {
  [strokeColor release];
  strokeColor = color.alpha == 0 ? nil : [ToDeviceColor(color) retain];
  strokeWidth = lineWidth;
}

void HXCocoaDC::SetFillColor(HXColor color) {
  [fillColor release];
  fillColor = color.alpha == 0 ? nil : [ToDeviceColor(color) retain];
}

void HXCocoaDC::SetTextColor(HXColor color) {
  [textColor release];
  textColor = [ToCalibratedColor(color) retain];
}

void HXCocoaDC::SetFont(const std::string& family, std::uint32_t style, float size) {
  underline = (style & kUnderline) != 0;
  [font release];
  font = [FontLookup::Find(family, (style & kBold) != 0, (style & kItalic) != 0, size) retain];
}

void HXCocoaDC::Fill(HXRect rect) {
  if (context == nil || fillColor == nil || IsEmpty(rect)) return;
  [fillColor set];
  NSRectFillUsingOperation(ToNative(rect), NSCompositeSourceOver);
}

void HXCocoaDC::Stroke(NSBezierPath* path) {
  if (context == nil || strokeColor == nil || strokeWidth <= 0) return;
  [strokeColor set];
  [path setLineWidth:strokeWidth];
  [path stroke];
}

void HXCocoaDC::DrawRect(HXRect rect) {
  Fill(rect);
  // The path below would have no area and yet be drawn, by some platforms only.
  if (rect.width <= 1 || rect.height <= 1) return;
  // A line of one pixel lies on the outermost pixels when it runs through their centres.
  Stroke([NSBezierPath bezierPathWithRect:NSInsetRect(ToNative(rect), 0.5, 0.5)]);
}

void HXCocoaDC::DrawPixel(HXPoint point) { Fill({point.x, point.y, 1, 1}); }

void HXCocoaDC::FillGradient(HXRect rect, HXColor first, HXColor second, bool vertical) {
  if (context == nil || IsEmpty(rect)) return;
  const NSRect area = ToNative(rect);
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(area);
  NSGradient* gradient = [[NSGradient alloc] initWithStartingColor:ToDeviceColor(first)
                                                       endingColor:ToDeviceColor(second)];
  const NSPoint end =
      vertical ? NSMakePoint(NSMinX(area), NSMaxY(area)) : NSMakePoint(NSMaxX(area), NSMinY(area));
  [gradient drawFromPoint:area.origin toPoint:end options:0];
  [gradient release];
  [NSGraphicsContext restoreGraphicsState];
}

void HXCocoaDC::DrawLine(HXPoint from, HXPoint to) {
  const CGFloat extra = from.y == to.y ? 1.0 : 0.0;
  NSBezierPath* path = [NSBezierPath bezierPath];
  [path moveToPoint:NSMakePoint(from.x, from.y + 0.5)];
  [path lineToPoint:NSMakePoint(to.x + extra, to.y + 0.5)];
  Stroke(path);
}

void HXCocoaDC::DrawCircle(HXPoint centre, std::int32_t radius, std::int32_t smoothMode) {
  if (smoothMode != 0 && smoothMode != 1) {
    HXAssertFailed("DrawCircle", "false && \"Unknown smooth mode!\"", "Src/HXUI/Cocoa/HXCocoaDC",
                   119);
  }
  [context setShouldAntialias:smoothMode == 1 ? YES : NO];
  if (radius < 0) return;
  const CGFloat extent = radius;
  const NSRect square =
      NSMakeRect(centre.x - extent, centre.y - extent, 2 * extent + 1, 2 * extent + 1);
  Stroke([NSBezierPath bezierPathWithOvalInRect:square]);
}

void HXCocoaDC::DrawBitmap(const HXBitmap& bitmap, HXPoint point, HXSize size) {
  NSImage* image = bitmap.GetImage();
  if (context == nil || image == nil) return;
  NSRect target = NSZeroRect;
  target.origin = ToNative(point);
  target.size = size == HXSize{} ? [image size] : ToNative(size);
  DrawImage(image, target, NSZeroRect);
}

void HXCocoaDC::DrawBitmapPart(const HXBitmap& bitmap, HXPoint point, HXRect source) {
  NSImage* image = bitmap.GetImage();
  if (context == nil || image == nil) return;
  NSRect whole = NSZeroRect;
  whole.size = [image size];
  // The platform would stretch the rest over the place of what lies outside of the image.
  NSRect part = NSIntersectionRect(ToNative(source), whole);
  if (NSIsEmptyRect(part)) return;
  const NSRect target = NSOffsetRect(part, static_cast<CGFloat>(point.x) - source.x,
                                     static_cast<CGFloat>(point.y) - source.y);
  if (!DrawsFromTop(image)) part.origin.y = NSMaxY(whole) - NSMaxY(part);
  DrawImage(image, target, part);
}

void HXCocoaDC::DrawText(const std::string& text, HXRect rect, std::uint32_t flags) {
  NSString* native = ToNative(text);
  if (context == nil || native == nil) return;
  [NSGraphicsContext saveGraphicsState];
  [context setShouldAntialias:YES];
  NSMutableDictionary* attributes = TextExtents::Attributes(flags, font);
  if (textColor != nil) [attributes setObject:textColor forKey:NSForegroundColorAttributeName];
  if (underline) {
    [attributes setObject:[NSNumber numberWithInt:1] forKey:NSUnderlineStyleAttributeName];
  }

  NSRect box = ToNative(rect);
  if (rect.width != 0 || rect.height != 0) {
    box.origin.x += kTextShift;
    box.origin.y -= kTextLift;
    box.size.height += kTextLift;
    if ((flags & kCentreVertically) != 0) {
      box.origin.y +=
          (rect.height - TextExtents::Measure(text, font, flags, NSZeroSize).height) / 2;
    }
  } else if ((flags & kRight) != 0) {
    box = NSMakeRect(rect.x - kRightBoxWidth, rect.y - kTextLift, kRightBoxWidth, kRightBoxHeight);
  } else {
    [native drawAtPoint:NSMakePoint(rect.x + kTextShift, rect.y - kTextLift)
         withAttributes:attributes];
  }
  if (!NSIsEmptyRect(box)) {
    const NSSize column = NSMakeSize(box.size.width, kUnbounded);
    DrawInBox(native, TextExtents::Measure(text, font, flags, column).height, box, attributes);
  }
  [NSGraphicsContext restoreGraphicsState];
}

HXSize HXCocoaDC::MeasureText(const std::string& text, HXSize bounds, std::uint32_t) const {
  if (ToNative(text) == nil) return {};
  const NSSize limits = NSMakeSize(bounds.width > 0 ? bounds.width : kUnbounded,
                                   bounds.height > 0 ? bounds.height : kUnbounded);
  // Always to the left: where the lines stand does not change what they take, but the platform
  // counts the empty line after a last line break from where it would begin.
  if (text.empty()) {
    return {1, FromNative(TextExtents::Measure(" ", font, 0, limits)).height};
  }
  const HXSize measured = FromNative(TextExtents::Measure(text, font, 0, limits));
  return {measured.width + 1, measured.height};
}

void HXCocoaDC::SetClipRect(HXRect rect) {
  if (context == nil) return;
  const NSRect area =
      IsEmpty(rect) ? NSZeroRect : NSIntersectionRect(ToNative(clip), ToNative(rect));
  NSRectClip(area);
  const HXPoint origin = FromNative(area.origin);
  const HXSize size = FromNative(area.size);
  clip = {origin.x, origin.y, size.width, size.height};
  // Some platforms forget a clip that leaves nothing when they save the graphics state.
  if (IsEmpty(clip) || ![[NSView focusView] needsToDrawRect:area]) context = nil;
}
