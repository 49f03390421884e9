#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "Src/HXUI/HXControl.h"
#include "Src/HXUI/HXTextBoxOwner.h"
#include "Src/HXUI/HXWindow.h"

class HXCocoaDC;
class HXControlFloat;

/// The modal window in which a colour is picked: by saturation and value in a
/// square, by hue on a bar, by three numbers or as six hexadecimal digits.
/// Edits the caller's colour live, always with alpha 255, and puts the first
/// one back when it is cancelled. Constructed by its caller, run with
/// `RunModal` and destroyed.
///
/// Reports `kChangeStep` for each live change, `kChangeStep` once more when it
/// is cancelled (also by Escape and the close button), and `kChangeDone` when
/// it is accepted.
class HXColorDialog : public HXWindow, public HXControl, public HXTextBoxOwner {
 public:
  /// `owner` is disabled while the dialog runs. `editedColor` must outlive the dialog.
  HXColorDialog(HXObject* owner, HXColor* editedColor);

  bool IsAccepted() const { return accepted; }

  void Draw() override;
  void OnMouse(MouseKind kind) override;
  /// Return (the insert-newline key) accepts, Escape cancels.
  bool OnKeyDown(int key) override;
  /// Tab moves the typing among the three numbers; typing anywhere is taken over.
  void OnEventSink(HXEventSinkRecord& record) override;
  /// Cancels.
  bool CanClose() override;
  bool OnTextBoxKeyDown(HXTextBox& box, int key) override;

 private:
  enum DragMode : std::int32_t { kNoDrag = 0, kHueDrag = 1, kSquareDrag = 2 };

  void BuildControls();
  HXControlFloat* MakeField(std::int32_t y, float* channel);
  void AddButton(std::int32_t y, const char* label, std::uint32_t command);

  void OnButton(std::uint32_t eventCode);
  static void OnFieldChange(HXObject* target, std::uint32_t command, HXControl* sender,
                            int notification);
  void End(bool accept);

  /// False when there is nothing to drag at `point`.
  bool BeginDrag(HXPoint point);
  void PickAt(HXPoint point);
  void ShowInitialColor();

  /// Takes over what was typed into the numbers or, if nothing was, into the
  /// hexadecimal box.
  void Synchronise();
  bool ReadHexBox();
  void MoveTyping(bool backward);

  std::array<HXControlFloat*, 3> Fields() const { return {redField, greenField, blueField}; }
  void FitFields();
  HXColor ChannelColor() const;
  void SetChannels(HXColor newColor);
  void SetHexText(HXColor newColor);
  /// Takes hue, saturation and brightness from the colour.
  void SetHsvFrom(HXColor newColor);
  void FillSquare();

  void DrawLabels(HXCocoaDC& dc);
  void DrawSwatches(HXCocoaDC& dc);
  void DrawMarkers(HXCocoaDC& dc);

  HXColor initialColor;
  HXColor* edited;
  HXTextBox* hexBox = nullptr;
  HXControlFloat* redField = nullptr;
  HXControlFloat* greenField = nullptr;
  HXControlFloat* blueField = nullptr;
  float red = 0;
  float green = 0;
  float blue = 0;
  /// In degrees, 0 to 360.
  float hue = 0;
  float saturation = 0;
  float brightness = 0;
  HXBitmap hueBar;
  HXBitmap squareImage;
  /// The hue that `squareImage` shows; none at first.
  float filledHue = -1;
  DragMode dragMode = kNoDrag;
  bool accepted = false;
};
