#include "Src/HXUI/HXPopupDialog.h"

#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXCheckBox.h"
#include "Src/HXUI/HXLayout.h"
#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/KeyCode.h"

namespace {

constexpr HXSize kFirstSize{250, 70};
constexpr HXSize kButtonSize{80, 35};
constexpr HXSize kWideButtonSize{120, 35};
constexpr std::int32_t kTextMarginX = 40;
constexpr std::int32_t kTextMarginY = 30;
constexpr std::int32_t kGapBelowCheckBox = 15;
constexpr std::int32_t kGapWithoutCheckBox = 5;
constexpr std::int32_t kBottomMargin = 10;

constexpr std::uint32_t kFirstAnswer = 0;
constexpr std::uint32_t kSecondAnswer = 1;

constexpr const char* kFontName = "Verdana";
constexpr float kFontSize = 11;
constexpr HXColor kBackground{17, 18, 20, 255};
constexpr HXColor kTextColor{200, 200, 200, 255};

}  // namespace

HXPopupDialog::HXPopupDialog(HXWindow* owner, const std::string& title, const std::string& message,
                             bool yesNo, bool cancelStyle, bool withDontShow)
    : HXWindow(owner, {}, kFirstSize, title, 0), text(message) {
  HXCocoaDC dc(nullptr);
  dc.SetFont(kFontName, 0, kFontSize);
  const HXSize textSize = dc.MeasureText(text, {0, 0}, 0);

  auto column = std::make_unique<HXLayout>(HXLayout::kColumn);
  column->AddGap(textSize.height + kTextMarginY);
  if (withDontShow) {
    column->AddLayout(BuildDontShow(), false);
    column->AddGap(kGapBelowCheckBox);
  } else {
    column->AddGap(kGapWithoutCheckBox);
  }
  column->AddLayout(BuildButtons(yesNo, cancelStyle), false);
  const HXSize size{textSize.width + kTextMarginX, column->Measure().height + kBottomMargin};
  HXWindow::SetLayout(std::move(column));

  // A window does not get smaller than its minimum, which is the size it was built with.
  HXWindow::SetMinSize(size);
  HXWindow::SetSize(size);
  Center();
  Redraw();
  RedrawNow();
}

std::unique_ptr<HXLayout> HXPopupDialog::BuildButtons(bool yesNo, bool cancelStyle) {
  const HXSize size = yesNo && cancelStyle ? kWideButtonSize : kButtonSize;
  const char* yes = cancelStyle ? "YES (CANCEL)" : "YES";
  auto row = std::make_unique<HXLayout>(HXLayout::kRow);
  auto* first = new HXSystemButton(this, {}, size, yesNo ? yes : "OK");
  first->SetHook(this, &HXPopupDialog::OnButton, kFirstAnswer);
  row->AddSpacer();
  row->AddWidget(first, false);
  row->AddSpacer();
  if (!yesNo) return row;
  auto* second = new HXSystemButton(this, {}, size, "NO");
  second->SetHook(this, &HXPopupDialog::OnButton, kSecondAnswer);
  row->AddWidget(second, false);
  row->AddSpacer();
  return row;
}

std::unique_ptr<HXLayout> HXPopupDialog::BuildDontShow() {
  auto* checkBox = new HXCheckBox(this, {}, &dontShowAgain, "Don't show again");
  checkBox->SetColor(kBackground);
  auto row = std::make_unique<HXLayout>(HXLayout::kRow);
  row->AddSpacer();
  row->AddWidget(checkBox, false);
  row->AddSpacer();
  return row;
}

void HXPopupDialog::OnButton(std::uint32_t eventCode) {
  if (eventCode == kLeftUp) EndWith(GetSenderId());
}

bool HXPopupDialog::OnKeyDown(int key) {
  if (key == kKeyInsertNewline) EndWith(kFirstAnswer);
  if (key == kKeyEscape) EndWith(kSecondAnswer);
  return true;
}

void HXPopupDialog::EndWith(std::uint32_t answer) {
  SetResult(answer);
  Close();
}

void HXPopupDialog::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(kBackground);
  dc.DrawRect({0, 0, size.width, size.height});
  dc.SetFont(kFontName, 0, kFontSize);
  dc.SetTextColor(kTextColor);
  dc.DrawText(text, {5, 15, size.width - 10, size.height - 80}, HXCocoaDC::kCentre);
}
