#pragma once

#include <string>
#include <vector>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXControlFloat.h"
#include "Src/HXUI/HXTextBox.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/TextFixture.h"

/// A numeric field in the toolkit's window, bound to `number`, and its owner.
class ControlFloatFixture : public TextFixture {
 protected:
  static constexpr HXPoint kOrigin{100, 100};
  static constexpr HXPoint kInside{5, 5};

  /// Makes `field` anew.
  HXControlFloat* Make(int format = 0, float lowest = 0, float highest = 100,
                       float sensitivity = 1) {
    delete field;
    field =
        new HXControlFloat(window.get(), kOrigin, &number, format, lowest, highest, sensitivity);
    field->SetChangeHandler(&ChangeRecorder::OnChange, &owner, 9);
    return field;
  }

  static HXTextBox& EditorOf(const HXControlFloat& control) {
    return *dynamic_cast<HXTextBox*>(control.GetChildren().at(0));
  }

  static HXSize Measure(const std::string& text, float size) {
    HXCocoaDC dc(nullptr);
    dc.SetFont("Verdana", 0, size);
    return dc.MeasureText(text, {0, 0}, 0);
  }
  static HXSize SizeFor(const std::string& text) { return {Measure(text, 10).width, 18}; }

  std::vector<int> Notifications() const {
    std::vector<int> notifications;
    for (const Change& change : owner.changes) notifications.push_back(change.notification);
    return notifications;
  }

  // A drag, in steps. Offsets from the press in pixels, y downward.
  void Press() { SendMouse(NSLeftMouseDown, *field, kInside); }
  void DragTo(int x, int y) {
    SendMouse(NSLeftMouseDragged, *field, {kInside.x + x, kInside.y + y});
  }
  void Release(int x, int y) { SendMouse(NSLeftMouseUp, *field, {kInside.x + x, kInside.y + y}); }

  /// By how much a drag by `x` and `y` changes the number.
  float Dragged(int x, int y) {
    const float before = number;
    Press();
    DragTo(x, y);
    Release(x, y);
    return number - before;
  }

  float number = 50;
  ChangeRecorder owner;
  HXControlFloat* field = nullptr;
};
