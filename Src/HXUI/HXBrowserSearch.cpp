#include "Src/HXUI/HXBrowserSearch.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXBrowserSearchBox.h"
#include "Src/HXUI/HXButton.h"
#include "Src/HXUI/HXTextControl.h"
#include "resources/Pictures.h"

namespace {

constexpr std::int32_t kBoxY = 7;
constexpr std::int32_t kIdleBoxX = 26;
constexpr std::int32_t kActiveBoxX = 6;
constexpr std::int32_t kBoxHeight = 16;
/// Of the clear button, from the right edge.
constexpr std::int32_t kClearInset = 23;
constexpr HXSize kClearSize{16, 15};

constexpr HXColor kBackground{54, 55, 58, 255};
constexpr HXColor kStrip{34, 35, 38, 255};
constexpr HXColor kHighlight{44, 46, 49, 255};
constexpr HXColor kShadow{10, 10, 10, 255};
constexpr HXColor kBlack{0, 0, 0, 255};
constexpr HXColor kTransparent{0, 0, 0, 0};

}  // namespace

HXBrowserSearch::HXBrowserSearch(HXObject* parentObject, HXPoint position, HXSize size,
                                 const std::string& text, std::uint32_t flags)
    : HXPanel(parentObject, position, size),
      box(new HXBrowserSearchBox(this, {kIdleBoxX, kBoxY}, {size.width - 47, kBoxHeight}, text,
                                 flags | HXTextControl::kNoFocusRing)),
      clearButton(new HXButton(this, {size.width - kClearInset, kBoxY}, kClearSize, kClearPng.bytes,
                               kClearPng.length, false)),
      icon(kSearchPng.bytes, kSearchPng.length) {
  box->SetChangeHandler(&HXBrowserSearch::OnBoxChange, this, 0);
  clearButton->SetHook(this, &HXBrowserSearch::OnClearButton, 0);
  clearButton->SetVisible(false);
  SetColor(kBackground);
}

HXBrowserSearch::~HXBrowserSearch() {
  // Leaving the screen ends the editing; by then there is no strip to hear of it.
  box->SetChangeHandler(nullptr, nullptr, 0);
}

std::string HXBrowserSearch::GetText() const { return box->GetText(); }

void HXBrowserSearch::Clear() {
  clearButton->SetVisible(false);
  box->Clear();
}

void HXBrowserSearch::OnFocusGained() { box->SetFocus(); }

void HXBrowserSearch::OnBoxChange(HXObject* target, std::uint32_t, HXControl*, int notification) {
  auto* strip = static_cast<HXBrowserSearch*>(target);
  if (notification == kChangeStep) strip->OnFocusChanged();
  if (notification == kChangeDone) strip->OnTextChanged();
}

void HXBrowserSearch::OnClearButton(std::uint32_t eventCode) {
  if (eventCode == kLeftUp) Clear();
}

void HXBrowserSearch::OnFocusChanged() {
  const HXSize size = GetSize();
  const std::int32_t height = box->GetSize().height;
  const bool active = box->IsActive();
  // While typing, the text takes the magnifier's place.
  box->SetSize({size.width - size.height - (active ? 5 : 25), height});
  box->SetPosition({active ? kActiveBoxX : kIdleBoxX, kBoxY});
  showIcon = !active;
  Redraw();
}

void HXBrowserSearch::OnTextChanged() {
  const bool hasText = !box->GetText().empty();
  if (clearButton->IsVisible() != hasText) clearButton->SetVisible(hasText);
  NotifyChange(this, kChangeDone);
}

void HXBrowserSearch::OnSize() {
  const HXSize size = GetSize();
  box->SetSize({size.width - size.height - 25, box->GetSize().height});
  clearButton->SetPosition({size.width - kClearInset, kBoxY});
}

void HXBrowserSearch::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  const std::int32_t bottom = size.height - 1;
  dc.SetStroke(kHighlight, 1);
  dc.DrawLine({0, 0}, {size.width, 0});
  dc.SetStroke(kTransparent, 1);
  dc.SetFillColor(kStrip);
  dc.DrawRect({0, 1, size.width, size.height - 2});
  dc.SetStroke(kShadow, 1);
  dc.DrawLine({0, bottom}, {size.width, bottom});
  DrawWell(dc, size);
  if (showIcon) dc.DrawBitmap(icon, {7, 6}, {16, 16});
}

void HXBrowserSearch::DrawWell(HXCocoaDC& dc, HXSize size) {
  const std::int32_t right = size.width - 6;
  dc.SetFillColor(box->GetColor());
  dc.SetStroke(kBlack, 1);
  dc.DrawRect({5, 5, size.width - 10, 19});
  dc.SetStroke(kShadow, 1);
  dc.DrawLine({5, 5}, {right, 5});
  dc.SetStroke(kHighlight, 1);
  dc.DrawLine({5, 24}, {right, 24});
}
