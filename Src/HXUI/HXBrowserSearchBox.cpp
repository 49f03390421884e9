#include "Src/HXUI/HXBrowserSearchBox.h"

#include "Src/HXUI/HXObjectGuard.h"
#include "Src/HXUI/KeyCode.h"

namespace {

constexpr const char* kPlaceholder = "Search...";
constexpr HXColor kBackground{10, 11, 11, 255};
constexpr HXColor kTextColor{158, 158, 158, 255};

}  // namespace

HXBrowserSearchBox::HXBrowserSearchBox(HXObject* parentObject, HXPoint position, HXSize size,
                                       const std::string& text, std::uint32_t flags)
    : HXTextControl(parentObject, position, size, text.empty() ? kPlaceholder : text, flags) {
  SetColor(kBackground);
  SetTextColor(kTextColor);
  AddEventSink(this);
}

void HXBrowserSearchBox::OnFocusGained() {
  active = true;
  if (GetText() == kPlaceholder) SetText("");
  NotifyChange(this, kChangeStep);
}

void HXBrowserSearchBox::OnFocusLost() {
  active = false;
  if (GetText().empty()) SetText(kPlaceholder);
  NotifyChange(this, kChangeStep);
}

bool HXBrowserSearchBox::OnKeyDown(int key) {
  if (key != kKeyEscape) return true;
  Clear();
  return false;
}

void HXBrowserSearchBox::OnEventSink(HXEventSinkRecord& record) {
  if (record.kind != kKeyUp || !HasFocus()) return;
  // Return comes up as what it types, whatever command it stood for.
  const bool isEditingKey = record.parameter == kKeyTab || record.parameter == kKeyInsertNewline ||
                            record.parameter == kKeyReturn || record.parameter == kKeyEscape;
  if (!isEditingKey) NotifyChange(this, kChangeDone);
}

void HXBrowserSearchBox::Clear() {
  const HXObjectGuard guard(this);
  if (!HasFocus()) SetFocus();
  if (!guard.IsAlive()) return;
  SetText("");
  if (!NotifyChange(this, kChangeDone)) return;
  // The strip takes the keyboard, so the field shows its placeholder at once.
  GetParent()->SetFocus();
}
