#include "Src/HXUI/HXColorDialog.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/Cocoa/KeyState.h"
#include "Src/HXUI/HXColorImages.h"
#include "Src/HXUI/HXControlFloat.h"
#include "Src/HXUI/HXHsv.h"
#include "Src/HXUI/HXObjectGuard.h"
#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/HXTextBox.h"
#include "Src/HXUI/KeyCode.h"

namespace {

constexpr HXSize kSize{385, 270};
constexpr HXSize kButtonSize{80, 35};
constexpr std::int32_t kButtonX = 300;
constexpr std::uint32_t kCancelCommand = 0;
constexpr std::uint32_t kOkCommand = 1;
constexpr std::int32_t kFieldX = 325;
constexpr std::array<std::int32_t, 3> kFieldY{90, 110, 130};
constexpr HXPoint kHexPosition{320, 160};
constexpr HXSize kHexSize{50, 16};
constexpr int kHexDigits = 6;

/// Where the square and the hue bar begin.
constexpr HXPoint kSquareOrigin{7, 7};
constexpr std::int32_t kHueX = 272;
constexpr HXRect kNewSwatch{302, 7, 76, 35};
constexpr HXRect kInitialSwatch{302, 42, 76, 35};
constexpr float kLast = 255;

constexpr HXColor kWhite{255, 255, 255, 255};
constexpr HXColor kBlack{0, 0, 0, 255};
constexpr HXColor kHexFrame{160, 240, 252, 255};
constexpr HXColor kTransparent{0, 0, 0, 0};

/// Cut to an integer and to its lowest eight bits.
std::uint8_t ToByte(float channel) {
  if (!(std::fabs(channel) < 1.0e9F)) return 0;
  return static_cast<std::uint8_t>(static_cast<std::int32_t>(channel));
}

}  // namespace

HXColorDialog::HXColorDialog(HXObject* owner, HXColor* editedColor)
    : HXWindow(owner, {}, kSize, "Color", 0), initialColor(*editedColor), edited(editedColor) {
  NotifyChange(this, kChangeBegins);
  SetChannels(initialColor);
  BuildControls();
  SetHsvFrom(initialColor);
  hueBar.CreateEmpty({HXColorImages::kBarWidth, HXColorImages::kSide});
  HXColorImages::FillHueBar(hueBar.LockPixels()->GetData());
  squareImage.CreateEmpty({HXColorImages::kSide, HXColorImages::kSide});
  FillSquare();
  AddEventSink(this);
  Center();
}

void HXColorDialog::BuildControls() {
  AddButton(230, "OK", kOkCommand);
  AddButton(190, "Cancel", kCancelCommand);
  redField = MakeField(kFieldY[0], &red);
  greenField = MakeField(kFieldY[1], &green);
  blueField = MakeField(kFieldY[2], &blue);
  hexBox = new HXTextBox(this, kHexPosition, kHexSize, "", HXTextControl::kNoFocusRing);
  hexBox->SetMaxLength(kHexDigits);
  hexBox->SetColor(kBlack);
  hexBox->SetTextColor(kWhite);
  SetHexText(initialColor);
}

HXControlFloat* HXColorDialog::MakeField(std::int32_t y, float* channel) {
  auto* field = new HXControlFloat(this, {kFieldX, y}, channel, HXFloatFormat::kInteger, 0, 255, 1);
  field->SetChangeHandler(&HXColorDialog::OnFieldChange, this, 0);
  return field;
}

void HXColorDialog::AddButton(std::int32_t y, const char* label, std::uint32_t command) {
  auto* button = new HXSystemButton(this, {kButtonX, y}, kButtonSize, label);
  button->SetHook(this, &HXColorDialog::OnButton, command);
}

// Ending

void HXColorDialog::OnButton(std::uint32_t eventCode) {
  // On the press already.
  if (eventCode == kLeftDown) End(GetSenderId() == kOkCommand);
}

void HXColorDialog::End(bool accept) {
  // A key may come twice, once as an event sink's and once as the window's own.
  if (IsClosed()) return;
  if (!accept) *edited = {initialColor.red, initialColor.green, initialColor.blue, 255};
  if (!NotifyChange(this, accept ? kChangeDone : kChangeStep)) return;
  accepted = accept;
  Close();
}

bool HXColorDialog::CanClose() {
  End(false);
  return true;
}

bool HXColorDialog::OnKeyDown(int key) {
  if (key == kKeyInsertNewline) End(true);
  if (key == kKeyEscape) End(false);
  return true;
}

bool HXColorDialog::OnTextBoxKeyDown(HXTextBox&, int key) {
  OnKeyDown(key);
  const bool isOtherLetter = (key >= 'G' && key <= 'Z') || (key >= 'g' && key <= 'z');
  return !isOtherLetter;
}

void HXColorDialog::OnEventSink(HXEventSinkRecord& record) {
  // A closed dialog stays a sink until it is destroyed.
  if (IsClosed()) return;
  if (record.kind == kKeyUp) {
    Synchronise();
    return;
  }
  if (record.kind != kKeyDown) return;
  if (record.parameter == kKeyTab || record.parameter == kKeyBackTab) {
    MoveTyping(record.parameter == kKeyBackTab || IsKeyDown(kVirtualKeyShift));
    record.pass = 0;
    return;
  }
  const bool isTyping = dynamic_cast<HXTextControl*>(record.source) != nullptr;
  if (!isTyping) OnKeyDown(static_cast<int>(record.parameter));
}

// Picking with the pointer

void HXColorDialog::OnMouse(MouseKind kind) {
  const bool captured = HasMouseCapture();
  if (kind == kLeftUp && captured) {
    dragMode = kNoDrag;
    ReleaseMouse();
    return;
  }
  const bool isPress = kind == kLeftDown || kind == kLeftDouble;
  if (!isPress && !(kind == kMouseMove && captured)) return;
  const HXPoint point = GetMousePosition(false);
  if (!captured) dragMode = kNoDrag;
  if (dragMode == kNoDrag && !BeginDrag(point)) return;
  PickAt(point);
}

bool HXColorDialog::BeginDrag(HXPoint point) {
  const auto [x, y] = point;
  const bool inRows = y >= 7 && y <= 263;
  if (x >= 302 && x < 379 && y >= 42 && y < 78) {
    ShowInitialColor();
    return false;
  }
  if (x >= 272 && x <= 292 && inRows) dragMode = kHueDrag;
  if (x >= 7 && x <= 263 && inRows) dragMode = kSquareDrag;
  return dragMode != kNoDrag;
}

void HXColorDialog::ShowInitialColor() {
  SetChannels(initialColor);
  FitFields();
  Redraw();
}

void HXColorDialog::PickAt(HXPoint point) {
  const float across = static_cast<float>(point.x - kSquareOrigin.x) / kLast;
  const float up = 1.0F - static_cast<float>(point.y - kSquareOrigin.y) / kLast;
  if (dragMode == kHueDrag) {
    hue = std::clamp(up * 360.0F, 0.0F, 360.0F);
  } else {
    saturation = std::clamp(across, 0.0F, 1.0F);
    brightness = std::clamp(up, 0.0F, 1.0F);
  }
  const HXRgb rgb = ToRgb({hue, saturation, brightness});
  red = rgb.red * kLast;
  green = rgb.green * kLast;
  blue = rgb.blue * kLast;
  *edited = ChannelColor();
  if (!NotifyChange(this, kChangeStep)) return;
  FillSquare();
  SetHexText(*edited);
  FitFields();
  Redraw();
  RedrawNow();
  if (!HasMouseCapture() && !IsClosed()) CaptureMouse();
}

// Typing

void HXColorDialog::OnFieldChange(HXObject* target, std::uint32_t, HXControl*, int) {
  static_cast<HXColorDialog*>(target)->Synchronise();
}

void HXColorDialog::Synchronise() {
  if (IsClosed()) return;
  // The fields do not show the alpha: a difference in nothing else is no typing of theirs.
  const HXColor current{edited->red, edited->green, edited->blue, 255};
  if (ChannelColor() != current) {
    SetHexText(ChannelColor());
  } else if (!ReadHexBox() && *edited == current) {
    return;
  }
  if (ChannelColor() != *edited) {
    *edited = ChannelColor();
    if (!NotifyChange(this, kChangeStep)) return;
    SetHsvFrom(*edited);
    FillSquare();
    Redraw();
  }
  FitFields();
}

bool HXColorDialog::ReadHexBox() {
  const std::string digits = hexBox->GetText().substr(0, kHexDigits);
  errno = 0;
  const long number = std::strtol(digits.c_str(), nullptr, 16);
  const auto packed = errno == ERANGE ? 0U : static_cast<unsigned long>(number);
  const HXColor typed{static_cast<std::uint8_t>(packed >> 16),
                      static_cast<std::uint8_t>(packed >> 8), static_cast<std::uint8_t>(packed),
                      255};
  if (typed == ChannelColor()) return false;
  SetChannels(typed);
  return true;
}

void HXColorDialog::FitFields() {
  for (HXControlFloat* field : Fields()) field->FitSize();
}

void HXColorDialog::MoveTyping(bool backward) {
  const std::array<HXControlFloat*, 3> fields = Fields();
  std::size_t next = 0;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (!fields[i]->IsEditing()) continue;
    next = (i + (backward ? fields.size() - 1 : 1)) % fields.size();
    const HXObjectGuard guard(this);
    fields[i]->EndEdit(true);
    if (!guard.IsAlive()) return;
    break;
  }
  fields[next]->TakeEditing();
}

HXColor HXColorDialog::ChannelColor() const {
  return {ToByte(red), ToByte(green), ToByte(blue), 255};
}

void HXColorDialog::SetChannels(HXColor newColor) {
  red = newColor.red;
  green = newColor.green;
  blue = newColor.blue;
}

void HXColorDialog::SetHexText(HXColor newColor) {
  std::array<char, kHexDigits + 1> text{};
  std::snprintf(text.data(), text.size(), "%02X%02X%02X", newColor.red, newColor.green,
                newColor.blue);
  hexBox->SetText(text.data());
}

void HXColorDialog::SetHsvFrom(HXColor newColor) {
  const HXHsv hsv =
      ToHsv({static_cast<float>(newColor.red) / kLast, static_cast<float>(newColor.green) / kLast,
             static_cast<float>(newColor.blue) / kLast});
  hue = hsv.hue;
  saturation = hsv.saturation;
  brightness = hsv.brightness;
}

void HXColorDialog::FillSquare() {
  // A drag inside the square changes nothing about it.
  if (filledHue == hue) return;
  filledHue = hue;
  HXColorImages::FillSquare(squareImage.LockPixels()->GetData(), hue);
}

// Drawing

void HXColorDialog::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(GetColor());
  dc.DrawRect({0, 0, size.width, size.height});
  DrawLabels(dc);
  DrawSwatches(dc);
  dc.DrawBitmap(squareImage, kSquareOrigin, {0, 0});
  dc.DrawBitmap(hueBar, {kHueX, kSquareOrigin.y}, {0, 0});
  DrawMarkers(dc);
}

void HXColorDialog::DrawLabels(HXCocoaDC& dc) {
  dc.SetFont("Verdana", 0, 10);
  dc.SetTextColor(kWhite);
  const std::array<const char*, 3> labels{"R:", "G:", "B:"};
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const HXPoint field = Fields()[i]->GetPosition();
    dc.DrawText(labels[i], {field.x - 15, field.y + 2, 0, 0}, 0);
  }
  const HXPoint hex = hexBox->GetPosition();
  dc.DrawText("#", {hex.x - 12, hex.y, 0, 0}, 0);
}

void HXColorDialog::DrawSwatches(HXCocoaDC& dc) {
  dc.SetFillColor(kBlack);
  dc.DrawRect({300, 5, 80, 74});
  dc.DrawRect({5, 5, 260, 260});
  dc.DrawRect({270, 5, 24, 260});

  const HXPoint hex = hexBox->GetPosition();
  const HXSize hexSize = hexBox->GetSize();
  dc.SetStroke(kHexFrame, 1);
  dc.DrawRect({hex.x - 2, hex.y - 2, hexSize.width + 4, hexSize.height + 4});

  dc.SetStroke(kTransparent, 1);
  dc.SetFillColor({edited->red, edited->green, edited->blue, 255});
  dc.DrawRect(kNewSwatch);
  dc.SetFillColor({initialColor.red, initialColor.green, initialColor.blue, 255});
  dc.DrawRect(kInitialSwatch);
}

void HXColorDialog::DrawMarkers(HXCocoaDC& dc) {
  const auto hueY = static_cast<std::int32_t>(kLast - hue * kLast / 360.0F) + 6;
  dc.SetStroke(kBlack, 2);
  dc.SetFillColor(kTransparent);
  dc.DrawRect({268, hueY, 29, 6});

  const auto x = static_cast<std::int32_t>(saturation * kLast) + kSquareOrigin.x;
  const auto y = static_cast<std::int32_t>((1.0F - brightness) * kLast) + kSquareOrigin.y;
  dc.SetStroke(brightness < 0.5F ? kWhite : kBlack, 2);
  dc.DrawCircle({x, y}, 5, 0);
}
