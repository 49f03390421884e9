#include "Src/HXUI/HXInputDialog.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/HXTextBox.h"
#include "Src/HXUI/KeyCode.h"

namespace {

constexpr HXSize kSize{200, 80};
constexpr HXPoint kBoxPosition{15, 15};
constexpr HXSize kBoxSize{170, 15};
constexpr int kMaxLength = 24;
constexpr HXSize kButtonSize{80, 30};
constexpr HXPoint kOkPosition{15, 40};
constexpr HXPoint kCancelPosition{105, 40};
constexpr std::uint32_t kOk = 0;
constexpr std::uint32_t kCancel = 1;

constexpr HXColor kBackground{10, 11, 11, 255};
constexpr HXColor kBoxFrame{160, 240, 252, 255};
constexpr HXColor kBoxBorder{0, 0, 0, 255};
constexpr HXColor kBoxFace{255, 255, 255, 255};
constexpr HXColor kNoOutline{0, 0, 0, 0};

}  // namespace

HXInputDialog::HXInputDialog(HXWindow* owner, const std::string& title, const char* initialText)
    : HXWindow(owner, {}, kSize, title, 0),
      textBox(new HXTextBox(this, kBoxPosition, kBoxSize, initialText == nullptr ? "" : initialText,
                            0)) {
  textBox->SetMaxLength(kMaxLength);
  textBox->SelectAll();
  AddButton(kOkPosition, "OK", kOk);
  AddButton(kCancelPosition, "Cancel", kCancel);
  Center();
  textBox->SetFocus();
}

void HXInputDialog::AddButton(HXPoint position, const char* label, std::uint32_t answer) {
  auto* button = new HXSystemButton(this, position, kButtonSize, label);
  button->SetHook(this, &HXInputDialog::OnButton, answer);
}

void HXInputDialog::OnButton(std::uint32_t eventCode) {
  if (eventCode == kLeftUp) EndWith(GetSenderId());
}

bool HXInputDialog::OnTextBoxKeyDown(HXTextBox& /*box*/, int key) {
  if (key != kKeyInsertNewline && key != kKeyEscape) return true;
  EndWith(key == kKeyEscape ? kCancel : kOk);
  return false;
}

void HXInputDialog::EndWith(std::uint32_t answer) {
  value = textBox->GetText();
  SetResult(answer);
  Close();
}

void HXInputDialog::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(kBackground);
  dc.DrawRect({0, 0, size.width, size.height});
  const HXPoint box = textBox->GetPosition();
  const HXSize boxSize = textBox->GetSize();
  dc.SetStroke(kBoxFrame, 1);
  dc.SetFillColor(kBoxBorder);
  dc.DrawRect({box.x - 2, box.y - 4, boxSize.width + 2, boxSize.height + 6});
  dc.SetStroke(kNoOutline, 1);
  dc.SetFillColor(kBoxFace);
  dc.DrawRect({box.x, box.y - 2, boxSize.width, boxSize.height});
}
