#include "Src/HXUI/Cocoa/HXCocoaDC.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Assert.h"
#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/FontLookup.h"
#include "Src/HXUI/Cocoa/GraphicsState.h"
#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "Src/HXUI/Cocoa/TextExtents.h"
#include "Src/HXUI/Cocoa/TextLayouts.h"

namespace {

/// Text stands this far to the right of where it is asked for, and this far above.
constexpr CGFloat kTextShift = 1;
constexpr CGFloat kTextLift = 2;
/// Unwrapped text that ends at a point is laid out to the right edge of this box.
constexpr CGFloat kRightBoxWidth = 4000;
constexpr CGFloat kRightBoxHeight = 100;
/// Stands for "no bound" when measuring.
constexpr CGFloat kUnbounded = 1.0e6;

void DrawInBox(const std::string& text, const TextLook& look, NSRect box) {
  const NSSize column = NSMakeSize(box.size.width, kUnbounded);
  if (TextExtents::Measure(text, look, column).height <= box.size.height) {
    TextLayouts::Draw(text, look, box);
    return;
  }
  const std::string fitting = TextExtents::Shortened(text, look, box.size);
  if (!fitting.empty()) {
    TextLayouts::Draw(fitting, look, box);
    return;
  }
  // In a box that is too low for its first line some platforms put the text anywhere.
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(box);
  box.size.height = kUnbounded;
  TextLayouts::Draw(text, look, box);
  [NSGraphicsContext restoreGraphicsState];
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

void HXCocoaDC::SetTextColor(HXColor color) { textColor = color; }

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
  if (strokeColor == nil || rect.width <= 1 || rect.height <= 1) return;
  // A line of one pixel lies on the outermost pixels when it runs through their centres.
  Stroke([NSBezierPath bezierPathWithRect:NSInsetRect(ToNative(rect), 0.5, 0.5)]);
}

void HXCocoaDC::DrawPixel(HXPoint point) { Fill({point.x, point.y, 1, 1}); }

void HXCocoaDC::DrawDots(HXPoint first, std::int32_t length) {
  if (context == nil || fillColor == nil || length <= 0) return;
  // All at once: drawn one by one they take as long as all the rest of a numeric field.
  NSBezierPath* path = [NSBezierPath bezierPath];
  for (std::int32_t x = 0; x < length; x += 2) {
    [path appendBezierPathWithRect:ToNative(HXRect{first.x + x, first.y, 1, 1})];
  }
  [fillColor set];
  [path fill];
}

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
  if (context == nil || text.empty() || ToNative(text) == nil) return;
  const BOOL wasSmooth = [context shouldAntialias];
  [context setShouldAntialias:YES];
  const TextLook look{font, flags, textColor, underline};

  NSRect box = ToNative(rect);
  if (rect.width != 0 || rect.height != 0) {
    box.origin.x += kTextShift;
    box.origin.y -= kTextLift;
    box.size.height += kTextLift;
    if ((flags & kCentreVertically) != 0) {
      box.origin.y += (rect.height - TextExtents::Measure(text, look, NSZeroSize).height) / 2;
    }
  } else if ((flags & kRight) != 0) {
    box = NSMakeRect(rect.x - kRightBoxWidth, rect.y - kTextLift, kRightBoxWidth, kRightBoxHeight);
  } else {
    box.origin = NSMakePoint(rect.x + kTextShift, rect.y - kTextLift);
    TextLayouts::Draw(text, look, box);
  }
  if (!NSIsEmptyRect(box)) DrawInBox(text, look, box);
  [context setShouldAntialias:wasSmooth];
}

HXSize HXCocoaDC::MeasureText(const std::string& text, HXSize bounds, std::uint32_t) const {
  if (ToNative(text) == nil) return {};
  const NSSize limits = NSMakeSize(bounds.width > 0 ? bounds.width : kUnbounded,
                                   bounds.height > 0 ? bounds.height : kUnbounded);
  // Always to the left: where the lines stand does not change what they take, but the platform
  // counts the empty line after a last line break from where it would begin.
  const TextLook look{.font = font};
  if (text.empty()) return {1, FromNative(TextExtents::Measure(" ", look, limits)).height};
  const HXSize measured = FromNative(TextExtents::Measure(text, look, limits));
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
