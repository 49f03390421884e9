#pragma once

#include <memory>
#include <vector>

#include "Src/HXUI/HXColorDialog.h"
#include "Src/HXUI/HXControlFloat.h"
#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/HXTextBox.h"
#include "Src/HXUI/KeyCode.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"

/// The colour dialog over the toolkit's window, its parts and its user.
class ColorDialogFixture : public ToolkitFixture {
 protected:
  ColorDialogFixture() { Open({0, 255, 0, 255}); }

  void Open(HXColor first) {
    color = first;
    owner.changes.clear();
    dialog = std::make_unique<HXColorDialog>(window.get(), &color);
    dialog->SetChangeHandler(&ChangeRecorder::OnChange, &owner, 0);
    dialog->SetVisible(true);
    PumpUntil([this] { return dialog->IsKeyWindow(); }, "the dialog to become key");
    // A window of odd width is centred between two pixels.
    dialog->SetPosition(dialog->GetPosition());
  }

  template <class Widget>
  Widget& Child(std::size_t index) const {
    std::vector<Widget*> found;
    for (HXObject* child : dialog->GetChildren()) {
      if (auto* widget = dynamic_cast<Widget*>(child)) found.push_back(widget);
    }
    return *found.at(index);
  }
  HXSystemButton& Ok() const { return Child<HXSystemButton>(0); }
  HXSystemButton& Cancel() const { return Child<HXSystemButton>(1); }
  /// Red, green, blue.
  HXControlFloat& Field(std::size_t index) const { return Child<HXControlFloat>(index); }
  HXTextBox& Hex() const { return Child<HXTextBox>(0); }
  int EditedField() const {
    for (int i = 0; i < 3; ++i) {
      if (Field(static_cast<std::size_t>(i)).IsEditing()) return i;
    }
    return -1;
  }

  std::vector<int> Notifications() const {
    std::vector<int> notifications;
    for (const Change& change : owner.changes) notifications.push_back(change.notification);
    return notifications;
  }

  void Press(HXPoint point) { SendMouse(NSLeftMouseDown, *dialog, point); }
  void DragTo(HXPoint point) { SendMouse(NSLeftMouseDragged, *dialog, point); }
  void Release(HXPoint point) { SendMouse(NSLeftMouseUp, *dialog, point); }

  /// Through the application's queue, as real keys come.
  void Type(NSString* characters) {
    for (NSUInteger i = 0; i < [characters length]; ++i) {
      NSString* one = [characters substringWithRange:NSMakeRange(i, 1)];
      [NSApp postEvent:KeyDownEvent(*dialog, one) atStart:NO];
      Pump();
    }
  }
  void TypeHex(NSString* digits) {
    Hex().SelectAll();
    Hex().SetFocus();
    Type(digits);
  }
  /// What any key does when it comes up.
  void KeyUp() {
    HXEventSinkRecord record{dialog.get(), kKeyUp, 'a', 1};
    dialog->OnEventSink(record);
  }

  HXColor color;
  ChangeRecorder owner;
  std::unique_ptr<HXColorDialog> dialog;
};
