// Rich text through the multi-line text control.

#include <cstdint>
#include <memory>

#include "Src/HXUI/HXTextControl.h"
#include "Src/HXUI/HXWindow.h"
#include "Src/HXUI/RtfFontTable.h"
#include "tests/fuzz/FuzzApplication.h"
#include "tests/fuzz/Require.h"

namespace {

HXTextControl* control;

void RequireFontTable(const std::string& rtf) {
  const auto keep = [](const std::string&) { return std::string(); };
  Require(RtfFontTable::ReplaceFamilies(rtf, keep) == rtf, "families that stay leave no trace");
  const auto repeat = [](const std::string& family) { return family; };
  Require(RtfFontTable::ReplaceFamilies(rtf, repeat) == rtf, "nothing but families is replaced");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzApplication::Start();
  static const std::unique_ptr<HXWindow> window = FuzzApplication::MakeWindow();
  control = new HXTextControl(window.get(), {0, 0}, {300, 100}, "",
                              HXTextControl::kMultiLine | HXTextControl::kReadOnly);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string rtf(data, data + size);
  RequireFontTable(rtf);
  FuzzApplication::WithPool([&rtf] {
    control->SetText(rtf);
    Require(control->GetSize().width == 300, "the width stays");
    Require(control->GetSize().height >= 0, "the height is that of some text");
    Require(FuzzApplication::IsUtf8(control->GetText()), "the text is UTF-8");
  });
  return 0;
}
