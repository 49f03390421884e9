// Numbers that are typed into a numeric field, in every format.

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <string>

#include "Src/HXUI/HXControlFloat.h"
#include "Src/HXUI/HXTextBox.h"
#include "Src/HXUI/HXWindow.h"
#include "tests/fuzz/FuzzApplication.h"
#include "tests/fuzz/Require.h"

namespace {

HXWindow* window;

/// What the field would show and read back, without the field.
void RequireFormat(const HXFloatFormat& format, float value) {
  const std::string shown = format.ShownText(value);
  Require(shown.starts_with(format.NumberText(value)), "the unit comes last");
  Require(FuzzApplication::IsUtf8(shown), "the shown text is UTF-8");
  const std::optional<float> read = format.Parse(format.EditorText(value));
  Require(read.has_value(), "what the editor starts with is a number");
  if (std::isfinite(value) && std::fabs(value) < 1e6F) {
    const float allowed = format.IsInteger() ? 1.0F : 0.2F;
    Require(std::fabs(*read - value) <= allowed, "and it is the number that was shown");
  }
}

void TypeInto(HXControlFloat& field, const std::string& text) {
  field.BeginEdit();
  auto* editor = dynamic_cast<HXTextBox*>(field.GetChildren().at(0));
  editor->SetText(text);
  field.EndEdit(true);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzApplication::Start();
  static const std::unique_ptr<HXWindow> owned = FuzzApplication::MakeWindow();
  window = owned.get();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const int code = input.ConsumeIntegralInRange(0, 8);
  const auto lowest = input.ConsumeFloatingPoint<float>();
  const auto highest = input.ConsumeFloatingPoint<float>();
  float value = input.ConsumeFloatingPoint<float>();
  const std::string text = input.ConsumeRemainingBytesAsString();

  const HXFloatFormat format(code);
  RequireFormat(format, value);
  FuzzApplication::WithPool([&] {
    const float before = value;
    const std::unique_ptr<HXControlFloat> field(
        new HXControlFloat(window, {0, 0}, &value, code, lowest, highest, 1));
    TypeInto(*field, text);
    Require(!field->IsEditing(), "the editor has gone");
    if (std::isnan(value)) return;
    if (highest > lowest && !format.IsAngle()) {
      Require(value >= lowest && value <= highest, "the number is within the range");
    }
    if (format.IsAngle()) Require(value >= 0 && value < 360, "the angle is within the circle");
    if (FuzzApplication::IsUtf8(text) && !format.Parse(text) && !(highest > lowest) &&
        !format.IsAngle()) {
      Require(value == before, "what is no number changes nothing");
    }
  });
  return 0;
}
