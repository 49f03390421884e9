#include "examples/gallery/NumbersView.h"

#include "Src/HXUI/HXControlFloat.h"
#include "Src/HXUI/HXSystemButton.h"
#include "examples/gallery/FieldRow.h"

namespace {

/// Marks a field without limits: its range is empty.
constexpr float kNoLimit = 0;

}  // namespace

NumbersView::NumbersView(HXObject* parentObject, EventLog& log) : GalleryView(parentObject, log) {
  BuildFormats();
  BuildRanges();
  BuildRow();
}

NumbersView::~NumbersView() {
  // Fields take themselves off their list, which must still be there then;
  // the view's members go before its children.
  delete fieldRow;
}

void NumbersView::BuildFormats() {
  AddHeading({20, 14}, "HXControlFloat: formats");
  const std::array<const char*, kFormatCount> names{
      "0  One decimal", "1  Integer",         "2  Angle, wrapped", "3  Degrees",
      "4  Percent",     "5  Degrees as well", "6  Two decimals",   "7  Fraction as percentage"};
  for (std::size_t i = 0; i < kFormatCount; ++i) {
    const auto y = static_cast<std::int32_t>(44 + 28 * i);
    AddCaption({20, y + 2}, names[i]);
    const float highest = i == HXFloatFormat::kFraction ? 1.0F : 1000.0F;
    auto* field =
        new HXControlFloat(this, {220, y}, &formatted[i], static_cast<int>(i), 0, highest, 1);
    Watch(*field, "Format " + std::to_string(i));
  }
}

void NumbersView::BuildRanges() {
  AddHeading({400, 14}, "Ranges and states");
  AddCaption({400, 46}, "0 to 100: fine steps");
  Watch(*new HXControlFloat(this, {620, 44}, &fine, 0, 0, 100, 1), "Fine");
  AddCaption({400, 74}, "0 to 1000: coarse steps");
  Watch(*new HXControlFloat(this, {620, 72}, &coarse, 0, 0, 1000, 1), "Coarse");
  AddCaption({400, 102}, "Without limits, ten times faster");
  Watch(*new HXControlFloat(this, {620, 100}, &unbounded, 0, kNoLimit, kNoLimit, 10), "Unbounded");
  AddCaption({400, 130}, "Grows while typing");
  auto* wide = new HXControlFloat(this, {620, 128}, &growing, 0, kNoLimit, kNoLimit, 1);
  wide->SetGrowWhileEditing(true);
  Watch(*wide, "Growing");

  AddCaption({400, 158}, "Bound or unbound");
  bindableField = new HXControlFloat(this, {620, 156}, &bindable, 0, 0, 100, 1);
  Watch(*bindableField, "Bindable");
  auto* button = new HXSystemButton(this, {660, 154}, {80, 20}, "Unbind");
  button->SetHook(this, &NumbersView::OnBind, 0);
}

void NumbersView::BuildRow() {
  AddHeading({400, 204}, "HXControlFloatParent");
  AddCaption({400, 234}, "The row closes up around its fields");
  fieldRow = new FieldRow(this, {400, 256}, {340, 26});
  for (std::size_t i = 0; i < kRowCount; ++i) {
    auto* field = new HXControlFloat(fieldRow, {0, 4}, &row[i], 0, kNoLimit, kNoLimit, 1);
    field->Register(rowFields);
    Watch(*field, "Row " + std::to_string(i));
  }
  fieldRow->OnFieldFitted();
  auto* next = new HXSystemButton(this, {400, 292}, {110, 24}, "Edit next");
  next->SetHook(this, &NumbersView::OnEditNext, 0);
}

void NumbersView::OnBind(std::uint32_t eventCode) {
  if (eventCode != kLeftUp) return;
  isBound = !isBound;
  bindableField->SetValuePointer(isBound ? &bindable : nullptr);
  auto* button = static_cast<HXSystemButton*>(GetSender());
  button->SetLabel(isBound ? "Unbind" : "Bind");
  button->Redraw();
}

void NumbersView::OnEditNext(std::uint32_t eventCode) {
  if (eventCode != kLeftUp) return;
  // The list knows which field was edited last.
  const auto count = static_cast<std::int64_t>(rowFields.GetFieldCount(0));
  const std::int64_t next = (rowFields.GetCurrentIndex() + 1) % count;
  if (HXControlFloat* field = rowFields.GetField(0, next)) field->TakeEditing();
}

std::string NumbersView::Values() const {
  std::string text;
  for (std::size_t i = 0; i < kFormatCount; i += 2) {
    std::string pair = Line("format " + std::to_string(i), formatted[i]);
    pair.back() = ',';
    text += pair + " " + Line("format " + std::to_string(i + 1), formatted[i + 1]);
  }
  text += Line("fine", fine) + Line("coarse", coarse) + Line("unbounded", unbounded) +
          Line("growing", growing) + Line("bindable", bindable);
  std::string numbers;
  for (const float number : row) numbers += (numbers.empty() ? "" : " ") + Text(number);
  return text + Line("row", numbers);
}
