#import "bench/Cocoa/PlainPage.h"

#include <algorithm>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/FontLookup.h"
#include "Src/HXUI/Cocoa/NativeText.h"
#include "Src/HXUI/HXTextControl.h"
#include "installer/InstallerUI.h"
#include "resources/Agreement.h"
#include "resources/Pictures.h"

namespace {

constexpr CGFloat kWidth = 500;
constexpr CGFloat kHeight = 360;
/// As wide as the texts of the agreement and the summary.
constexpr CGFloat kScrolledWidth = 283;
constexpr auto kDrawOptions = static_cast<NSStringDrawingOptions>(37);

NSColor* Grey(int value) {
  const float component = static_cast<float>(value) / 255.0F;
  return [NSColor colorWithDeviceRed:component green:component blue:component alpha:1];
}

void FillWith(int red, int green, int blue, NSRect area) {
  [[NSColor colorWithDeviceRed:static_cast<float>(red) / 255.0F
                         green:static_cast<float>(green) / 255.0F
                          blue:static_cast<float>(blue) / 255.0F
                         alpha:1] set];
  NSRectFill(area);
}

NSImage* Picture(const EmbeddedFile& file) {
  NSData* data = [NSData dataWithBytes:file.bytes length:file.length];
  NSImage* image = [[NSImage alloc] initWithData:data];
  [image setFlipped:YES];
  return image;
}

NSDictionary* Attributes(const char* family, bool bold, float size, HXColor color,
                         NSTextAlignment alignment) {
  NSMutableParagraphStyle* style =
      [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
  [style setLineBreakMode:NSLineBreakByWordWrapping];
  [style setAlignment:alignment];
  return [[NSDictionary alloc] initWithObjectsAndKeys:FontLookup::Find(family, bold, false, size),
                                                      NSFontAttributeName, ToCalibratedColor(color),
                                                      NSForegroundColorAttributeName, style,
                                                      NSParagraphStyleAttributeName, nil];
}

NSDictionary* TextAttributes(const char* family, bool bold, float size) {
  return Attributes(family, bold, size, {200, 200, 200, 255}, NSLeftTextAlignment);
}

NSDictionary* LabelAttributes(HXColor color) {
  return Attributes("Tahoma", true, 11, color, NSCenterTextAlignment);
}

/// In the colours and with the grip of a scroll bar of the toolkit.
void DrawScrollBar(NSRect bar, CGFloat contentHeight) {
  const CGFloat x = NSMinX(bar);
  const CGFloat y = NSMinY(bar);
  const CGFloat height = NSHeight(bar);
  CGFloat thumb = height;
  if (contentHeight > height) thumb = std::floor(height * height / contentHeight);
  thumb = std::max(thumb, 20.0);
  FillWith(0, 0, 0, bar);
  FillWith(17, 18, 20, NSMakeRect(x + 1, y, 16, height));
  FillWith(37, 38, 42, NSMakeRect(x + 1, y, 16, thumb));
  const CGFloat middle = y + std::floor(thumb / 2);
  for (const int line : {-3, -1, 1, 3}) {
    FillWith(80, 80, 80, NSMakeRect(x + 5, middle + line, 7, 1));
  }
}

/// Cuts the agreement off at the page's edge.
NSView* MakeAgreement() {
  NSRect frame = NSMakeRect(0, 0, kScrolledWidth, 50);
  NSView* text =
      NativeText::Create({0, 0, 283, 50}, HXTextControl::kReadOnly | HXTextControl::kMultiLine);
  const std::string rtf(reinterpret_cast<const char*>(kAgreementRtf.bytes), kAgreementRtf.length);
  frame.size.height = NativeText::SetRichText(text, rtf);
  [text setFrameSize:frame.size];
  NativeText::SetBackgroundColor(text, {255, 255, 255, 255});
  return text;
}

}  // namespace

/// Turned over, as all of the toolkit's views are.
@interface FlippedView : NSView
@end

@implementation FlippedView
- (BOOL)isFlipped {
  return YES;
}
@end

@implementation PlainPage

- (id)initWithContent:(const PlainPageContent&)shown {
  self = [super initWithFrame:NSMakeRect(0, 0, kWidth, kHeight)];
  if (self == nil) return nil;
  content = new PlainPageContent(shown);
  banner = Picture(kBannerPng);
  boxes = Picture(kCheckBoxPng);
  title = TextAttributes("Verdana", true, 15);
  plain = TextAttributes("Verdana", false, 11);
  bold = TextAttributes("Verdana", true, 11);
  narrow = TextAttributes("Tahoma", false, 11);
  usableLabel = LabelAttributes({209, 211, 212, 255});
  otherLabel = LabelAttributes({134, 134, 134, 255});
  if (content->page == InstallerUI::kLicencePage) {
    NSView* clip = [[FlippedView alloc] initWithFrame:NSMakeRect(180, 60, kScrolledWidth, 240)];
    agreement = MakeAgreement();
    [clip addSubview:agreement];
    [self addSubview:clip];
  }
  return self;
}

- (BOOL)isFlipped {
  return YES;
}

/// From `x`, `y` as the wizard gives it, at most to the window's right edge or `width`.
- (void)draw:(const std::string&)text
          at:(NSPoint)place
       width:(CGFloat)width
        with:(NSDictionary*)look {
  [[NSGraphicsContext currentContext] setShouldAntialias:YES];
  [ToNative(text) drawWithRect:NSMakeRect(place.x + 1, place.y - 2, width, kHeight + 2)
                       options:kDrawOptions
                    attributes:look];
}

- (void)drawButton:(int)index {
  const bool usable = content->usable[index];
  NSRect frame = NSMakeRect(content->buttonX[index], 320, content->buttonWidth[index], 30);
  FillWith(usable ? 44 : 30, usable ? 45 : 30, usable ? 49 : 31, frame);
  NSDictionary* look = usable ? usableLabel : otherLabel;
  NSString* label = ToNative(content->labels[index]);
  const CGFloat spare = 31 - [label sizeWithAttributes:look].height;
  [label drawWithRect:NSMakeRect(NSMinX(frame) + 1, 320 - 2 + spare / 2, NSWidth(frame) + 1, 33)
              options:kDrawOptions
           attributes:look];
}

- (void)drawHosts {
  [self draw:"Select which versions of Adobe After Effects you want to install Ostrel 3D on:"
          at:NSMakePoint(170, 70)
       width:330
        with:bold];
  CGFloat y = 115;
  for (std::size_t i = 0; i < content->hosts.size(); ++i, y += 25) {
    [boxes drawInRect:NSMakeRect(180, y, 14, 14)
              fromRect:NSMakeRect(content->ticked[i] ? 14 : 0, 0, 14, 14)
             operation:NSCompositeSourceOver
              fraction:1.0
        respectFlipped:YES
                 hints:nil];
    [ToNative(content->hosts[i]) drawAtPoint:NSMakePoint(201, y - 2) withAttributes:plain];
  }
}

- (void)drawSummary {
  [self draw:"Click Next to continue with the installation, or click Back if you want to review or "
             "change any settings."
          at:NSMakePoint(170, 70)
       width:320
        with:plain];
  [Grey(100) set];
  NSFrameRect(NSMakeRect(179, 109, 300, 192));
  FillWith(30, 30, 30, NSMakeRect(180, 110, kScrolledWidth, 190));
  [ToNative(content->summary) drawWithRect:NSMakeRect(181, 108, kScrolledWidth, 192)
                                   options:kDrawOptions
                                attributes:narrow];
  DrawScrollBar(NSMakeRect(463, 110, 17, 190), content->summaryHeight);
}

- (void)drawContent {
  switch (content->page) {
    case InstallerUI::kWelcomePage:
      [self draw:content->welcome at:NSMakePoint(170, 70) width:330 with:plain];
      break;
    case InstallerUI::kLicencePage:
      FillWith(255, 255, 255, NSMakeRect(180, 60, kScrolledWidth, 240));
      DrawScrollBar(NSMakeRect(463, 60, 17, 240), NSHeight([agreement frame]));
      break;
    case InstallerUI::kHostPage:
      [self drawHosts];
      break;
    case InstallerUI::kSummaryPage:
      [self drawSummary];
      break;
    case InstallerUI::kProgressPage:
      [self draw:"Installing Ostrel 3D for After Effects, please wait..."
              at:NSMakePoint(170, 70)
           width:330
            with:bold];
      [self draw:content->progress at:NSMakePoint(170, 120) width:330 with:plain];
      break;
    default:
      [self draw:"Ostrel 3D for After Effects has been successfully installed!\n\n"
                 "Click Finish to close the installer."
              at:NSMakePoint(170, 70)
           width:330
            with:plain];
      break;
  }
}

- (void)drawRect:(NSRect)dirty {
  (void)dirty;
  [[NSGraphicsContext currentContext] setShouldAntialias:NO];
  FillWith(45, 45, 45, [self bounds]);
  [banner drawInRect:NSMakeRect(0, 0, 160, 310)
            fromRect:NSZeroRect
           operation:NSCompositeSourceOver
            fraction:1.0
      respectFlipped:YES
               hints:nil];
  FillWith(70, 70, 70, NSMakeRect(0, 310, kWidth, 50));
  FillWith(100, 100, 100, NSMakeRect(0, 310, kWidth, 1));
  [[NSGraphicsContext currentContext] setShouldAntialias:YES];
  [@"Ostrel 3D for After Effects Installer" drawAtPoint:NSMakePoint(171, 18) withAttributes:title];
  [self drawContent];
  for (int index = 0; index < 3; ++index) [self drawButton:index];
}

@end
