#include "Src/HXUI/HXControlFloat.h"

#include <algorithm>
#include <cmath>

#include "Src/HXUI/Cocoa/CursorShape.h"
#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/Cocoa/KeyState.h"
#include "Src/HXUI/HXControlFloatList.h"
#include "Src/HXUI/HXControlFloatParent.h"
#include "Src/HXUI/HXObjectGuard.h"
#include "Src/HXUI/HXTextBox.h"
#include "Src/HXUI/KeyCode.h"

namespace {

constexpr HXSize kFirstSize{40, 18};
constexpr std::int32_t kHeight = 18;
constexpr std::int32_t kGrowingEditorHeight = 14;
constexpr std::int32_t kSmallestGrowingText = 20;
constexpr int kMaxTypedLength = 20;
constexpr const char* kFont = "Verdana";
constexpr float kShownSize = 10;
constexpr float kEditorSize = 11;

constexpr HXColor kBackground{30, 31, 34, 255};
constexpr HXColor kAccent{116, 200, 243, 255};
constexpr HXColor kUnboundText{131, 132, 133, 255};
constexpr HXColor kEditorBackground{0, 0, 0, 255};
constexpr HXColor kEditorText{216, 217, 217, 255};

HXSize Measure(const std::string& text, float size) {
  HXCocoaDC dc(nullptr);
  dc.SetFont(kFont, 0, size);
  return dc.MeasureText(text, {0, 0}, 0);
}

/// Into [0, 360); what is no number stays so.
float WrappedAngle(float degrees) {
  float wrapped = std::fmod(degrees, 360.0F);
  if (wrapped < 0) wrapped += 360.0F;
  // A tiny negative angle rounds up to the full circle.
  return wrapped >= 360.0F ? 0.0F : wrapped;
}

}  // namespace

HXControlFloat::HXControlFloat(HXObject* parentObject, HXPoint position, float* boundValue,
                               int formatCode, float lowest, float highest, float dragSensitivity)
    : HXPanelControl(parentObject, position, kFirstSize),
      value(boundValue),
      minimum(lowest),
      maximum(highest),
      sensitivity(dragSensitivity),
      format(formatCode),
      editor(new HXTextBox(this, {2, 2}, {kFirstSize.width - 4, kFirstSize.height - 4}, "",
                           HXTextControl::kNoFocusRing)) {
  SetColor(kBackground);
  editor->SetVisible(false);
  editor->SetMaxLength(kMaxTypedLength);
  // The room for the typed text is measured in this font.
  editor->SetFont(kFont, kEditorSize);
  editor->SetColor(kEditorBackground);
  editor->SetTextColor(kEditorText);
  FitSize();
}

HXControlFloat::~HXControlFloat() {
  if (group != nullptr) group->Remove(this);
}

void HXControlFloat::SetValuePointer(float* boundValue) {
  value = boundValue;
  // An unbound field hears of no release.
  if (value == nullptr && dragging) {
    dragging = false;
    ReleaseMouse();
  }
  FitSize();
}

void HXControlFloat::SetGrowWhileEditing(bool grow) {
  // What is typed is heard of as an event sink; once is enough.
  if (grow && !growWhileEditing) AddEventSink(this);
  growWhileEditing = grow;
}

std::int64_t HXControlFloat::Register(HXControlFloatList& fields) {
  group = &fields;
  groupIndex = fields.Append(this);
  return groupIndex;
}

// Size and look

bool HXControlFloat::IsEditing() const { return editor->IsVisible(); }

HXSize HXControlFloat::FittingSize() const {
  if (!IsEditing()) return {Measure(format.ShownText(CurrentValue()), kShownSize).width, kHeight};
  if (!growWhileEditing) return kFirstSize;
  const std::int32_t typed = Measure(editor->GetText(), kEditorSize).width;
  return {std::max(typed, kSmallestGrowingText) + 10, kHeight};
}

void HXControlFloat::FitSize() {
  const HXSize size = FittingSize();
  if (IsEditing() && growWhileEditing) editor->SetSize({size.width - 4, kGrowingEditorHeight});
  if (size != GetSize()) SetSize(size);
  Redraw();
  if (auto* parent = dynamic_cast<HXControlFloatParent*>(GetParent())) parent->OnFieldFitted();
}

void HXControlFloat::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  if (IsEditing()) {
    dc.SetStroke(kAccent, 1);
    dc.SetFillColor(kEditorBackground);
    dc.DrawRect({0, 0, size.width, size.height});
    return;
  }
  dc.SetFillColor(GetColor());
  dc.DrawRect({0, 0, size.width, size.height});

  const HXColor textColor = value == nullptr ? kUnboundText : kAccent;
  dc.SetTextColor(textColor);
  dc.SetFont(fontName, 0, fontSize);
  dc.DrawText(format.ShownText(CurrentValue()), {-1, 2, 0, 0}, 0);

  // The dots tell that the number can be dragged.
  const HXSize number = dc.MeasureText(format.NumberText(CurrentValue()), {0, 0}, 0);
  dc.SetFillColor(textColor);
  dc.DrawDots({0, number.height}, number.width);
}

// Dragging

float HXControlFloat::Limited(float number) const {
  if (maximum > minimum) {
    if (number < minimum) number = minimum;
    if (number > maximum) number = maximum;
  }
  return format.IsAngle() ? WrappedAngle(number) : number;
}

float HXControlFloat::DragStep() const {
  float step = maximum > minimum && maximum <= 100 ? 0.01F : 0.5F;
  if (format.IsInteger()) step = 0.2F;
  step *= sensitivity;
  if (IsKeyDown(kVirtualKeyShift)) return step * 3.0F;
  if (IsKeyDown(kVirtualKeyCommand)) return step * 0.2F;
  return step;
}

void HXControlFloat::OnMouse(MouseKind kind) {
  if (value == nullptr) {
    if (IsEditing()) EndEdit(true);
    return;
  }
  switch (kind) {
    case kLeftDown:
      Press();
      break;
    case kMouseMove:
      Drag();
      break;
    case kLeftUp:
      Release();
      break;
    case kMouseEntered:
      if (!IsEditing()) SetCursorShape(kCursorResizeLeftRight);
      break;
    case kMouseExited:
      SetCursorShape(kCursorArrow);
      break;
    default:
      break;
  }
}

void HXControlFloat::Press() {
  if (IsEditing()) return;
  dragging = true;
  dragged = false;
  lastPointer = GetMousePosition(true);
  CaptureMouse();
}

void HXControlFloat::Drag() {
  // Hidden in the middle of a drag, the field has lost the pointer.
  if (dragging && !HasMouseCapture()) dragging = false;
  if (!dragging) return;
  const HXPoint pointer = GetMousePosition(true);
  if (pointer == lastPointer) return;
  if (!dragged) {
    if (!NotifyOwner(kChangeBegins)) return;
    dragged = true;
  }
  // The owner may have bound something else, or nothing, just now.
  if (value == nullptr) return;
  const std::int32_t distance = (pointer.y - lastPointer.y) + (pointer.x - lastPointer.x);
  lastPointer = pointer;
  *value = Limited(*value + static_cast<float>(distance) * DragStep());
  FitSize();
  if (!NotifyOwner(kChangeStep)) return;
  Redraw();
  RedrawNow();
}

void HXControlFloat::Release() {
  if (!dragging) return;
  dragging = false;
  ReleaseMouse();
  if (dragged) {
    FitSize();
    NotifyOwner(kChangeDone);
    return;
  }
  const HXPoint pointer = GetMousePosition(false);
  const HXSize size = GetSize();
  const bool inside =
      pointer.x >= 0 && pointer.x <= size.width && pointer.y >= 0 && pointer.y <= size.height;
  if (inside) BeginEdit();
}

// Typing

bool HXControlFloat::TakeEditing() {
  BeginEdit();
  return true;
}

void HXControlFloat::BeginEdit() {
  if (group != nullptr) group->SetCurrentIndex(groupIndex);
  editor->SetText(format.EditorText(CurrentValue()));
  editor->SetVisible(true);
  FitSize();
  editor->SelectAll();
  editor->SetFocus();
}

void HXControlFloat::EndEdit(bool accept) {
  if (!IsEditing()) return;
  const HXObjectGuard guard(this);
  const bool hadFocus = editor->HasFocus();
  editor->SetVisible(false);
  // The hidden box must not go on taking keys.
  if (hadFocus) SetFocus();
  if (guard.IsAlive()) Commit(accept);
}

void HXControlFloat::Commit(bool accept) {
  const HXObjectGuard guard(this);
  if (value != nullptr && accept) TakeTypedText();
  if (guard.IsAlive()) FitSize();
}

void HXControlFloat::TakeTypedText() {
  const float old = *value;
  const std::string text = editor->GetText();
  if (!NotifyOwner(kChangeBegins) || value == nullptr) return;
  const float typed = format.Parse(text).value_or(*value);
  *value = Limited(typed);
  // Written so that what is no number counts as a difference.
  const bool same = *value == old;
  if (!same) NotifyOwner(kChangeDone);
}

void HXControlFloat::OnClose() { editor->SetVisible(false); }

void HXControlFloat::OnEventSink(HXEventSinkRecord& record) {
  if (record.kind != kKeyUp || record.source != editor) return;
  // A text that is too long does not stay.
  if (growWhileEditing && IsEditing() && !editor->IsTooLong()) FitSize();
}

void HXControlFloat::OnTextBoxFocusLost(HXTextBox&) {
  if (!IsEditing()) return;
  // The keyboard is on its way to somebody else and must not be called back.
  editor->SetVisible(false);
  Commit(true);
}

bool HXControlFloat::OnTextBoxKeyDown(HXTextBox&, int key) {
  if (key == kKeyInsertNewline || key == kKeyEscape) EndEdit(key == kKeyInsertNewline);
  return key != kKeyTab && key != kKeyInsertNewline && key != kKeyEscape;
}
