#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXTypes.h"

class HXBitmap;
class HXObject;

/// The drawing surface of the toolkit: made on the stack inside a widget's
/// `Draw`, gone at its end. Draws in the widget's coordinates: pixels, origin
/// at the top left, y downward. Colours, line width and font last as long as
/// this object; anti-aliasing and clip belong to the platform and last to the
/// end of the drawing pass. `FillGradient` and `DrawText` leave all of them as
/// they were. Drawing is crisp (no anti-aliasing) except for text and smooth
/// circles. Colours blend with what is there by their alpha. Nothing reports a
/// failure: what is empty, negative or not set draws nothing, and without a
/// widget or a current platform context all drawing is left out, while
/// measuring still works. Main thread only.
class HXCocoaDC {
 public:
  /// To be added for `SetFont`.
  enum FontStyle : std::uint32_t { kBold = 1, kItalic = 2, kUnderline = 4 };
  /// To be added for `DrawText` and `MeasureText`.
  enum TextFlags : std::uint32_t { kCentre = 1, kRight = 2, kCentreVertically = 4 };

  /// `widget` may be null for a context that only measures.
  explicit HXCocoaDC(HXObject* widget);
  /// The third argument of old callers; ignored.
  HXCocoaDC(HXObject* widget, bool ignored);
  ~HXCocoaDC();
  HXCocoaDC(const HXCocoaDC&) = delete;
  HXCocoaDC& operator=(const HXCocoaDC&) = delete;

  /// Colour and width (in pixels) of lines, outlines and circles. At first
  /// transparent and 1.
  void SetStroke(HXColor color, float lineWidth);
  /// Of rectangles and pixels; nothing is filled before.
  void SetFillColor(HXColor color);
  /// Black before.
  void SetTextColor(HXColor color);
  /// A family that the platform lacks is replaced by the nearest sans-serif
  /// one. Size in points (one pixel each); `style` adds `FontStyle`s.
  void SetFont(const std::string& family, std::uint32_t style, float size);

  /// Fills, then outlines; a line of one pixel lies on the outermost pixels.
  /// A rectangle of one pixel's width or height has no outline.
  void DrawRect(HXRect rect);
  void DrawPixel(HXPoint point);
  /// Every other one of `length` pixels to the right of `first`, beginning with
  /// that, as by `DrawPixel`.
  void DrawDots(HXPoint first, std::int32_t length);
  /// From `first` at the top to `second` at the bottom when `vertical`, else
  /// from the left to the right.
  void FillGradient(HXRect rect, HXColor first, HXColor second, bool vertical);
  /// A horizontal line from the left to the right covers both end pixels.
  /// Other lines have only their y moved to the pixel's centre and gain nothing
  /// at the end: from (5, 0) to (5, 10) covers the rows 0 to 9.
  void DrawLine(HXPoint from, HXPoint to);
  /// A circle whose line runs along the edge of the square of 2 * radius + 1
  /// pixels around `centre`, half of it outside. Mode 1 draws it smooth, 0 does
  /// not; the setting lasts. Any other mode stops the program.
  void DrawCircle(HXPoint centre, std::int32_t radius, std::int32_t smoothMode);
  /// Scaled to `size` in pixels, or at its own size when that is 0 by 0.
  void DrawBitmap(const HXBitmap& bitmap, HXPoint point, HXSize size);
  /// The part `source` of the bitmap, counted from its top left, unscaled. What
  /// of it lies outside of the bitmap draws nothing.
  void DrawBitmapPart(const HXBitmap& bitmap, HXPoint point, HXRect source);
  /// UTF-8, broken at line ends and wrapped at words within the rectangle;
  /// stands 1 pixel to the right of it and 2 above its top. Where the lines do
  /// not fit the last visible one ends in an ellipsis; a first line that is too
  /// high is cut at the bottom. A rectangle of 0 by 0 gives unwrapped text from
  /// its origin, or with `kRight` text that ends there; the other flags then do
  /// nothing. `kRight` wins over `kCentre`; `kCentreVertically` moves the text
  /// as if it had a single line. Invalid text draws nothing.
  void DrawText(const std::string& text, HXRect rect, std::uint32_t flags);
  /// The extent of the lines that fit into `bounds` (0 is unbounded): the
  /// integer part of their width plus 1, and of their height. The flags change
  /// nothing. Empty text is 1 wide and one line high; invalid UTF-8 gives 0 by 0.
  HXSize MeasureText(const std::string& text, HXSize bounds, std::uint32_t flags) const;
  /// Draws inside `rect` only, on top of earlier clips, to the end of the
  /// drawing pass.
  void SetClipRect(HXRect rect);

 private:
  void Fill(HXRect rect);
  void Stroke(NSBezierPath* path);

  HXObject* widget;
  // Null where nothing is to be drawn.
  NSGraphicsContext* context = nullptr;
  NSFont* font = nullptr;
  std::optional<HXColor> textColor;
  bool underline = false;
  // Null while transparent.
  NSColor* strokeColor = nullptr;
  NSColor* fillColor = nullptr;
  float strokeWidth = 1;
  // What the clips of this context leave.
  HXRect clip = {INT32_MIN / 2, INT32_MIN / 2, INT32_MAX, INT32_MAX};
};
