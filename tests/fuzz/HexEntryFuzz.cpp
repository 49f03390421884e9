// Hexadecimal digits, and anything else, that are typed into the colour dialog.

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "Src/HXUI/HXColorDialog.h"
#include "Src/HXUI/HXTextBox.h"
#include "tests/fuzz/FuzzApplication.h"
#include "tests/fuzz/Require.h"

namespace {

constexpr HXColor kFirst{18, 52, 86, 255};

HXTextBox* HexBoxOf(const HXColorDialog& dialog) {
  for (HXObject* child : dialog.GetChildren()) {
    if (auto* box = dynamic_cast<HXTextBox*>(child)) return box;
  }
  return nullptr;
}

/// A key has gone up somewhere, after which the dialog looks at what it holds.
void ReleaseKey(HXColorDialog& dialog, HXObject* source) {
  HXEventSinkRecord record{};
  record.source = source;
  record.kind = kKeyUp;
  record.pass = 1;
  dialog.OnEventSink(record);
}

HXColor ColorOf(const std::string& shown) {
  const std::string digits = shown.substr(0, 6);
  const long number = std::strtol(digits.c_str(), nullptr, 16);
  const auto packed = static_cast<unsigned long>(number);
  return {static_cast<std::uint8_t>(packed >> 16), static_cast<std::uint8_t>(packed >> 8),
          static_cast<std::uint8_t>(packed), 255};
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzApplication::Start();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static HXColor edited = kFirst;
  static HXColorDialog dialog(nullptr, &edited);
  static HXTextBox* const box = HexBoxOf(dialog);
  const std::string typed(data, data + size);
  FuzzApplication::WithPool([&typed] {
    box->SetText(typed);
    const std::string shown = box->GetText();
    ReleaseKey(dialog, box);
    Require(edited == ColorOf(shown), "the colour is what the first six characters say");
    ReleaseKey(dialog, box);
    Require(edited == ColorOf(shown), "a second look changes nothing");
  });
  return 0;
}
