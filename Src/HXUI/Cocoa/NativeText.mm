#include "Src/HXUI/Cocoa/NativeText.h"

#import <AppKit/AppKit.h>

#include <cmath>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/FontLookup.h"
#import "Src/HXUI/Cocoa/HXTextDelegate.h"
#import "Src/HXUI/Cocoa/HXTextField.h"
#include "Src/HXUI/HXTextControl.h"
#include "Src/HXUI/RtfFields.h"
#include "Src/HXUI/RtfFontSizes.h"
#include "Src/HXUI/RtfFontTable.h"

namespace {

/// Taller than any text: the text view itself never grows.
constexpr CGFloat kUnlimited = 1e7;

bool IsTextView(NSView* view) { return [view isKindOfClass:[NSTextView class]]; }
NSTextField* AsField(NSView* view) {
  return [view isKindOfClass:[NSTextField class]] ? static_cast<NSTextField*>(view) : nil;
}

NSTextField* CreateField(NSRect frame, std::uint32_t flags) {
  const bool password = (flags & HXTextControl::kPassword) != 0;
  NSTextField* field = password ? [[NSSecureTextField alloc] initWithFrame:frame]
                                : [[HXTextField alloc] initWithFrame:frame];
  const BOOL bezeled = (flags & HXTextControl::kBezeled) != 0;
  [field setEditable:(flags & HXTextControl::kReadOnly) == 0];
  [field setSelectable:YES];
  // The platform draws one of the two: the bezel, which is set last.
  [field setBordered:bezeled];
  [field setBezeled:bezeled];
  const BOOL centred = (flags & HXTextControl::kCentred) != 0;
  [field setAlignment:centred ? NSCenterTextAlignment : NSLeftTextAlignment];
  // Long texts scroll sideways instead of going on in an invisible second line.
  // Centred ones do not: GNUstep moves them out of sight while they are edited.
  [[field cell] setScrollable:!centred];
  if ((flags & HXTextControl::kNoFocusRing) != 0) [field setFocusRingType:NSFocusRingTypeNone];
  return field;
}

NSTextView* CreateTextView(NSRect frame, std::uint32_t flags) {
  NSTextView* view = [[NSTextView alloc] initWithFrame:frame];
  [view setRichText:YES];
  [view setEditable:(flags & HXTextControl::kReadOnly) == 0];
  [view setSelectable:YES];
  // Its size is the widget's business alone.
  [view setHorizontallyResizable:NO];
  [view setVerticallyResizable:NO];
  [[view textContainer] setWidthTracksTextView:YES];
  [[view textContainer] setHeightTracksTextView:NO];
  [[view textContainer] setContainerSize:NSMakeSize(frame.size.width, kUnlimited)];
  return view;
}

/// The family in which this system shows `family`; empty when there is none.
std::string InstalledFamily(const std::string& family) {
  NSString* wanted = ToNative(family);
  return wanted == nil ? std::string() : FromNative(FontLookup::InstalledFamily(wanted));
}

/// Autoreleased; empty when the bytes are no RTF.
NSAttributedString* ParseRtf(const std::string& rtf) {
  // GNUstep drops bold and italic along with a family that is not there.
  const std::string families = RtfFontTable::ReplaceFamilies(rtf, InstalledFamily);
  const std::string document = RtfFontSizes::Bound(RtfFields::DisarmUnusual(families));
  NSData* data = [NSData dataWithBytes:document.data() length:document.size()];
  NSAttributedString* text = nil;
  @try {
    text = [[[NSAttributedString alloc] initWithRTF:data documentAttributes:NULL] autorelease];
  } @catch (NSException* exception) {
    NSLog(@"Rich text could not be read: %@", [exception reason]);
  }
  return text != nil ? text : [[[NSAttributedString alloc] init] autorelease];
}

/// Of all of the text, rounded up.
std::int32_t LaidOutHeight(NSTextView* view) {
  NSTextContainer* container = [view textContainer];
  NSLayoutManager* layout = [view layoutManager];
  // Lays out all of it.
  (void)[layout glyphRangeForTextContainer:container];
  const CGFloat height =
      NSMaxY([layout usedRectForTextContainer:container]) + 2 * [view textContainerInset].height;
  return static_cast<std::int32_t>(std::ceil(height));
}

}  // namespace

NSView* NativeText::Create(HXRect frame, std::uint32_t flags) {
  if ((flags & HXTextControl::kMultiLine) != 0) return CreateTextView(ToNative(frame), flags);
  return CreateField(ToNative(frame), flags);
}

HXTextDelegate* NativeText::Connect(NSView* view, HXTextControl* control) {
  NSTextField* field = AsField(view);
  HXTextDelegate* delegate = [[HXTextDelegate alloc] initWithField:field control:control];
  [field setDelegate:delegate];
  if ([field isKindOfClass:[HXTextField class]]) {
    [static_cast<HXTextField*>(field) setTextControl:control];
  }
  return delegate;
}

void NativeText::Disconnect(NSView* view, HXTextDelegate* delegate) {
  NSTextField* field = AsField(view);
  if ([field isKindOfClass:[HXTextField class]]) {
    [static_cast<HXTextField*>(field) setTextControl:nullptr];
  }
  [field setDelegate:nil];
  [delegate disconnect];
  [delegate release];
}

void NativeText::SetText(HXTextDelegate* delegate, const std::string& text) {
  NSString* string = ToNative(text);
  if (string == nil) string = @"";
  [delegate showText:string caret:[string length]];
}

std::int32_t NativeText::SetRichText(NSView* view, const std::string& rtf) {
  if (!IsTextView(view)) return 0;
  NSTextView* textView = static_cast<NSTextView*>(view);
  @try {
    [[textView textStorage] setAttributedString:ParseRtf(rtf)];
    return LaidOutHeight(textView);
  } @catch (NSException* exception) {
    // GNUstep's layout gives up on some texts.
    NSLog(@"Rich text could not be laid out: %@", [exception reason]);
  }
  return 0;
}

std::string NativeText::GetText(HXTextDelegate* delegate) { return FromNative([delegate text]); }

std::string NativeText::GetPlainText(NSView* view) {
  if (!IsTextView(view)) return {};
  return FromNative([static_cast<NSTextView*>(view) string]);
}

void NativeText::SelectAll(NSView* view) {
  NSTextField* field = AsField(view);
  @try {
    if (!IsBeingEdited(field)) [[field window] makeFirstResponder:field];
    [field selectText:nil];
  } @catch (NSException* exception) {
    // GNUstep offers each selection to other programs at once, through a server
    // that may have gone. The text is selected all the same.
    NSLog(@"The selection could not be offered: %@", [exception reason]);
  }
}

void NativeText::SetMaxLength(HXTextDelegate* delegate, int length) {
  [delegate setMaximumLength:length];
}

bool NativeText::IsTooLong(HXTextDelegate* delegate) { return [delegate isTooLong] == YES; }

void NativeText::SetFont(NSView* field, const std::string& family, float size) {
  [AsField(field) setFont:FontLookup::Find(family, false, false, size)];
}

void NativeText::SetTextColor(NSView* view, HXColor color) {
  NSColor* native = ToCalibratedColor(color);
  if (IsTextView(view)) {
    [static_cast<NSTextView*>(view) setTextColor:native];
    return;
  }
  NSTextField* field = AsField(view);
  [field setTextColor:native];
  NSText* editor = [[field window] fieldEditor:YES forObject:field];
  if (IsTextView(editor)) [static_cast<NSTextView*>(editor) setInsertionPointColor:native];
}

void NativeText::SetBackgroundColor(NSView* view, HXColor color) {
  NSColor* native = ToDeviceColor(color);
  if (IsTextView(view)) {
    [static_cast<NSTextView*>(view) setBackgroundColor:native];
  } else {
    [AsField(view) setBackgroundColor:native];
  }
}

bool NativeText::IsBeingEdited(NSView* view) {
  NSWindow* window = [view window];
  NSResponder* responder = [window firstResponder];
  if (view == nil || ![responder isKindOfClass:[NSTextView class]]) return false;
  if ([window fieldEditor:NO forObject:nil] == nil) return false;
  return static_cast<id>([static_cast<NSTextView*>(responder) delegate]) == view;
}
