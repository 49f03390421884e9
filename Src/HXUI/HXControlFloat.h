#pragma once

#include <cstdint>
#include <string>

#include "Src/HXUI/HXFloatFormat.h"
#include "Src/HXUI/HXPanelControl.h"
#include "Src/HXUI/HXTextBoxOwner.h"

class HXControlFloatList;

/// A number of its owner that is changed by dragging across it or, after a
/// click, by typing. Shows it in one of several formats over a dotted line,
/// keeps it within a range and fits its own size to the text. Owned by its
/// parent, which is told of each fitting when it is an `HXControlFloatParent`.
///
/// Reports `kChangeBegins`, a `kChangeStep` for each step of a drag, and
/// `kChangeDone`. A typed number is reported with `kChangeBegins`, and with
/// `kChangeDone` only if it makes a difference. Escape reports nothing.
class HXControlFloat : public HXPanelControl, public HXTextBoxOwner {
 public:
  /// `boundValue` may be null, which makes the field inert, and otherwise must
  /// outlive it. `formatCode` is an `HXFloatFormat::Code`. The range applies
  /// only when `highest` is above `lowest`. `dragSensitivity` multiplies the
  /// steps of a drag.
  HXControlFloat(HXObject* parent, HXPoint position, float* boundValue, int formatCode,
                 float lowest, float highest, float dragSensitivity);
  ~HXControlFloat() override;

  /// Binds another number, or none, which also ends a drag.
  void SetValuePointer(float* boundValue);
  /// Lets the field widen to what is being typed.
  void SetGrowWhileEditing(bool grow);

  /// Opens the editor over the field, with all of its text selected.
  void BeginEdit();
  /// The same for owners that move the editing on; true when it has begun.
  virtual bool TakeEditing();
  bool IsEditing() const;
  /// Ends the editing: takes over what was typed, or drops it.
  void EndEdit(bool accept);

  /// Registers the field in `fields`, which must outlive it; returns its
  /// position in the list's last group.
  std::int64_t Register(HXControlFloatList& fields);

  /// Fits the size to the text of this moment and redraws. For owners that
  /// have changed the number by themselves.
  void FitSize();

  void Draw() override;
  void OnMouse(MouseKind kind) override;
  /// Hides the editor.
  void OnClose() override;
  void OnEventSink(HXEventSinkRecord& record) override;
  void OnTextBoxFocusLost(HXTextBox& box) override;
  bool OnTextBoxKeyDown(HXTextBox& box, int key) override;

 private:
  float CurrentValue() const { return value == nullptr ? 0.0F : *value; }
  /// `number` within the range and, for an angle, within the circle.
  float Limited(float number) const;
  HXSize FittingSize() const;
  float DragStep() const;
  void Press();
  void Drag();
  void Release();
  /// What follows once the editor is hidden.
  void Commit(bool accept);
  void TakeTypedText();

  std::int64_t groupIndex = 0;
  HXControlFloatList* group = nullptr;
  float* value;
  float minimum;
  float maximum;
  float sensitivity;
  float fontSize = 10;
  std::string fontName = "Verdana";
  HXFloatFormat format;
  HXTextBox* editor;
  bool dragging = false;
  bool dragged = false;
  bool growWhileEditing = false;
  HXPoint lastPointer;
};
