#pragma once

#include "Src/HXUI/HXControl.h"
#include "Src/HXUI/HXTextControl.h"

/// The text field of an `HXBrowserSearch`, which owns it: shows "Search..."
/// while it is empty and has no focus. That placeholder is real text of the
/// field: whoever reads the idle field gets it.
///
/// Tells the strip `kChangeStep` when the focus comes or goes and
/// `kChangeDone` when the text has changed and when any key but Tab, Return and
/// Escape comes up while the field has the focus.
class HXBrowserSearchBox : public HXTextControl, public HXControl {
 public:
  HXBrowserSearchBox(HXObject* parent, HXPoint position, HXSize size, const std::string& text,
                     std::uint32_t flags);

  /// Whether the user is in the field. Unlike `HasFocus` this is settled
  /// before the platform has finished moving the keyboard.
  bool IsActive() const { return active; }

  /// Empties the field and leaves it.
  void Clear();

  void OnFocusGained() override;
  void OnFocusLost() override;
  /// Escape clears the field.
  bool OnKeyDown(int key) override;
  /// Sees the typing in this field.
  void OnEventSink(HXEventSinkRecord& record) override;

 private:
  bool active = false;
};
