#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXPanel.h"

/// A platform text control as a widget: a single-line field, a password field,
/// or a multi-line view of rich text. Editing, selection, clipboard and undo
/// are the platform's own; added are a maximum length, the way of the keys
/// through the event sinks and `OnKeyDown`, and the focus notifications.
/// Owned by its parent. Main thread only; lengths in pixels, texts in UTF-8.
///
/// Keys of a single-line control: Return arrives in `OnKeyDown` as
/// `kKeyInsertNewline`, Escape as `kKeyEscape`, Tab and Shift-Tab as `kKeyTab`
/// and `kKeyBackTab`; what a key would type arrives as that key's UTF-16 unit
/// before it is inserted, except in a password field, whose characters concern
/// nobody else. Each of these passes the event sinks first, as `kKeyDown`. The
/// keys that only edit or move the caret (Backspace, Delete, the arrows) reach
/// the field unasked. After each change of the text the sinks see a `kKeyUp`
/// with parameter 0 (again not for a password).
///
/// Focus of a single-line control: `OnFocusGained` when the field gets the
/// keyboard, `OnFocusLost` once when editing ends. Return does not end it, nor
/// does Tab when there is no other view to go to. A password field sends no
/// `OnFocusGained`, and `OnFocusLost` only after `SetFocus`.
/// A multi-line control has neither these keys nor these notifications.
class HXTextControl : public HXPanel {
 public:
  /// To be added; other bits change nothing.
  enum Flags : std::uint32_t {
    /// Can be selected and copied, not changed.
    kReadOnly = 1,
    kCentred = 2,
    kPassword = 4,
    /// Without it there is neither bezel nor border.
    kBezeled = 8,
    /// Takes rich text; `kCentred`, `kPassword`, `kBezeled` and `kNoFocusRing`
    /// are ignored then.
    kMultiLine = 32,
    kNoFocusRing = 64,
  };

  /// `text` is as for `SetText`; `flags` adds `Flags`.
  HXTextControl(HXObject* parent, HXPoint position, HXSize size, const std::string& text,
                std::uint32_t flags);
  ~HXTextControl() override;

  /// The background; alpha 0 shows what lies behind.
  void SetColor(HXColor newColor) override;
  /// Also begins the editing that `OnFocusLost` ends.
  void SetFocus() override;
  /// True while a single-line control is being edited, in whatever window;
  /// never for a multi-line one.
  bool HasFocus() const override;

  /// Single line: the new text, whatever its length; an editing session goes
  /// on. Multi-line: the text is RTF, and the height becomes that of the
  /// parsed text at the present width. What is not UTF-8, or not RTF, gives an
  /// empty text.
  void SetText(const std::string& text);
  /// What is there at the moment, while editing too; of a multi-line control
  /// the characters without their markup.
  std::string GetText() const;
  /// Selects all of a single-line control, which gets the keyboard by it.
  /// Nothing for a multi-line control.
  void SelectAll();
  /// In UTF-16 units, 100 at first. A change by the user that makes the text
  /// longer is undone as a whole. Does not touch the text that is there.
  void SetMaxLength(int length);
  /// Whether the text is longer than that: set so by `SetText`, or, for an event sink that hears
  /// of it (`kKeyUp`), by a change that is undone next. Never for a multi-line control.
  bool IsTooLong() const;
  /// Of a single-line control, which has the platform's font otherwise; `size` in points. As
  /// `HXCocoaDC` finds fonts, so a text measured there is as wide here.
  void SetFont(const std::string& family, float size);
  /// The text's colour, and the caret's in this window from now on.
  void SetTextColor(HXColor newColor);
  HXColor GetTextColor() const { return textColor; }

  bool IsMultiLine() const { return multiLine; }
  bool IsPassword() const { return password; }
  /// Whether `OnFocusLost` is still to come.
  bool IsEditing() const { return editing; }

  /// A number that the owner may keep with the control; 0 at first.
  void SetValue(std::int32_t newValue) { value = newValue; }
  std::int32_t GetValue() const { return value; }

  // What the native field and its delegate forward. Either may end with this
  // control deleted.

  /// The field is about to take the keyboard.
  void FieldGotFocus();
  /// Sends `OnFocusLost` if it is due.
  void FieldEndedEditing();

 private:
  std::int32_t value = 0;
  bool multiLine;
  bool editing = false;
  bool password;
  /// Null for a multi-line control.
  HXTextDelegate* textDelegate = nullptr;
  HXColor textColor;
};
