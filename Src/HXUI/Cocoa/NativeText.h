#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXTypes.h"

class HXTextControl;

/// What `HXTextControl` asks of the platform's text fields and text views. The
/// views are the ones that `Create` has made; a null delegate is that of a
/// multi-line control. Main thread only; texts in UTF-8.
namespace NativeText {

/// A field or a text view according to the `HXTextControl::Flags`, in no
/// window yet. The caller owns one reference.
NSView* Create(HXRect frame, std::uint32_t flags);

/// Gives the field a new delegate that works for `control`. The caller ends
/// both links with `Disconnect`, which also gives the delegate back.
HXTextDelegate* Connect(NSView* field, HXTextControl* control);
void Disconnect(NSView* view, HXTextDelegate* delegate);

/// Of the delegate's field. Invalid UTF-8 gives an empty text.
void SetText(HXTextDelegate* delegate, const std::string& text);
std::string GetText(HXTextDelegate* delegate);
/// Parses RTF into a text view; returns the height of the laid-out text in
/// pixels, rounded up. What is no RTF gives an empty text; fonts are kept between 1 and 1638
/// points; 0 when the platform cannot lay the text out.
std::int32_t SetRichText(NSView* textView, const std::string& rtf);
/// The characters of a text view without their markup.
std::string GetPlainText(NSView* textView);

/// Of a field in a window; takes the keyboard if need be.
void SelectAll(NSView* field);
void SetMaxLength(HXTextDelegate* delegate, int length);
bool IsTooLong(HXTextDelegate* delegate);
/// Of a field.
void SetFont(NSView* field, const std::string& family, float size);
void SetTextColor(NSView* view, HXColor color);
void SetBackgroundColor(NSView* view, HXColor color);

/// The window's field editor has the keyboard and works for this field.
bool IsBeingEdited(NSView* field);

}  // namespace NativeText
