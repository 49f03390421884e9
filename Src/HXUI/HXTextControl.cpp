#include "Src/HXUI/HXTextControl.h"

#include "Src/HXUI/Cocoa/NativeText.h"
#include "Src/HXUI/HXObjectGuard.h"

HXTextControl::HXTextControl(HXObject* parentObject, HXPoint position, HXSize size,
                             const std::string& text, std::uint32_t flags)
    : HXPanel(parentObject,
              NativeText::Create({position.x, position.y, size.width, size.height}, flags), size),
      multiLine((flags & kMultiLine) != 0),
      password(!multiLine && (flags & kPassword) != 0) {
  if (!multiLine) textDelegate = NativeText::Connect(nativeView, this);
  HXTextControl::SetText(text);
  // Whatever has happened to the field so far was not the user's editing.
  editing = false;
}

HXTextControl::~HXTextControl() {
  // The field may outlive this control for the rest of an event, and its
  // editing ends when it leaves the window.
  NativeText::Disconnect(nativeView, textDelegate);
}

void HXTextControl::SetColor(HXColor newColor) {
  HXPanel::SetColor(newColor);
  NativeText::SetBackgroundColor(nativeView, newColor);
}

void HXTextControl::SetFocus() {
  const HXObjectGuard guard(this);
  HXPanel::SetFocus();
  if (guard.IsAlive()) editing = true;
}

bool HXTextControl::HasFocus() const { return NativeText::IsBeingEdited(nativeView); }

void HXTextControl::SetText(const std::string& text) {
  if (!multiLine) {
    NativeText::SetText(textDelegate, text);
    return;
  }
  const std::int32_t height = NativeText::SetRichText(nativeView, text);
  SetSize({GetSize().width, height});
}

std::string HXTextControl::GetText() const {
  return multiLine ? NativeText::GetPlainText(nativeView) : NativeText::GetText(textDelegate);
}

void HXTextControl::SelectAll() {
  if (!multiLine) NativeText::SelectAll(nativeView);
}

void HXTextControl::SetMaxLength(int length) { NativeText::SetMaxLength(textDelegate, length); }
bool HXTextControl::IsTooLong() const { return NativeText::IsTooLong(textDelegate); }

void HXTextControl::SetFont(const std::string& family, float size) {
  if (!multiLine) NativeText::SetFont(nativeView, family, size);
}

void HXTextControl::SetTextColor(HXColor newColor) {
  textColor = newColor;
  NativeText::SetTextColor(nativeView, newColor);
}

void HXTextControl::FieldGotFocus() {
  const HXObjectGuard guard(this);
  OnFocusGained();
  if (guard.IsAlive()) editing = true;
}

void HXTextControl::FieldEndedEditing() {
  if (!editing) return;
  // First of all: what the owner does about it may end the editing again, by
  // hiding the field for example.
  editing = false;
  OnFocusLost();
}
