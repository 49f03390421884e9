#include "examples/gallery/ButtonsView.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXButton.h"
#include "Src/HXUI/HXSystemButton.h"
#include "resources/Pictures.h"

ButtonsView::ButtonsView(HXObject* parentObject, EventLog& log) : GalleryView(parentObject, log) {
  BuildTextButtons();
  BuildPictureButtons();
}

void ButtonsView::BuildTextButtons() {
  AddHeading({20, 14}, "HXSystemButton");

  AddCaption({20, 48}, "Counts its clicks");
  auto* count = new HXSystemButton(this, {220, 40}, {110, 30}, "Click me");
  count->SetHook(this, &ButtonsView::OnCount, 0);

  AddCaption({20, 88}, "Every mouse event");
  WatchMouse(*new HXSystemButton(this, {220, 80}, {110, 30}, "Listen"), "Listen");

  // A disabled button looks the part but goes on notifying: its owner decides.
  AddCaption({20, 128}, "Disabled");
  auto* disabled = new HXSystemButton(this, {220, 120}, {110, 30}, "Disabled");
  disabled->SetEnabled(false);
  WatchMouse(*disabled, "Disabled");

  AddCaption({20, 168}, "Plain label, size 13, coloured");
  auto* styled = new HXSystemButton(this, {220, 160}, {110, 30}, "Styled");
  styled->SetLabelFont(0, 13);
  styled->SetLabelColor({255, 200, 120, 255});
  WatchMouse(*styled, "Styled");

  AddCaption({20, 208}, "Small");
  WatchMouse(*new HXSystemButton(this, {220, 203}, {60, 20}, "Browse"), "Small");
}

void ButtonsView::BuildPictureButtons() {
  AddHeading({20, 254}, "HXButton");

  // The size is the picture's; the one that is given does not count.
  AddCaption({20, 284}, "One face");
  WatchMouse(*new HXButton(this, {220, 283}, {0, 0}, kClearPng.bytes, kClearPng.length, false),
             "Cross");

  AddCaption({20, 310}, "Two faces, a click switches");
  switchButton =
      new HXButton(this, {220, 309}, {0, 0}, kCheckBoxPng.bytes, kCheckBoxPng.length, true);
  switchButton->SetHook(this, &ButtonsView::OnSwitchFace, 0);

  AddCaption({20, 336}, "Dimmed");
  auto* dimmed =
      new HXButton(this, {220, 335}, {0, 0}, kCheckBoxPng.bytes, kCheckBoxPng.length, true);
  dimmed->SetFace(1);
  dimmed->SetDimmed(true);
  WatchMouse(*dimmed, "Dimmed");

  AddCaption({20, 362}, "As when hovered");
  auto* hovered =
      new HXButton(this, {220, 361}, {0, 0}, kCheckBoxPng.bytes, kCheckBoxPng.length, true);
  hovered->SetHover(true);
  WatchMouse(*hovered, "Hovered");
}

void ButtonsView::OnCount(std::uint32_t eventCode) {
  // The release on the pressed button is what users call a click.
  if (eventCode == kLeftUp) ++clicks;
}

void ButtonsView::OnSwitchFace(std::uint32_t eventCode) {
  if (eventCode != kLeftUp) return;
  face = 1 - face;
  switchButton->SetFace(face);
  // Setters leave the redrawing to the caller, who may have more to change.
  switchButton->Redraw();
}

std::string ButtonsView::Values() const { return Line("clicks", clicks) + Line("face", face); }
