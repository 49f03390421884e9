#pragma once

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Src/HXUI/HXObject.h"
#include "Src/HXUI/HXTypes.h"
#include "Src/HXUI/HXWindow.h"

/// The pixels of a widget as the platform has drawn them.
class DrawnPixels {
 public:
  explicit DrawnPixels(NSBitmapImageRep* representation);
  ~DrawnPixels();
  DrawnPixels(const DrawnPixels&) = delete;
  DrawnPixels& operator=(const DrawnPixels&) = delete;

  HXSize GetSize() const;
  /// From the top left; outside of the picture (0, 0, 0, 0).
  HXColor At(int x, int y) const;
  /// How many pixels of `rect` satisfy the test.
  int Count(HXRect rect, const std::function<bool(HXColor)>& test) const;
  /// How many pixels of `rect` differ from `background`.
  int Ink(HXRect rect, HXColor background) const;
  /// The smallest rectangle within `rect` that holds all ink; 0 by 0 without any.
  HXRect InkBounds(HXRect rect, HXColor background) const;

 private:
  NSBitmapImageRep* rep;
};

/// Base of the toolkit's tests: the real AppKit on a real display, one real
/// window (`window`, 400 by 300, visible) and real or synthesised events. The
/// program needs a display with a window manager.
class ToolkitFixture : public ::testing::Test {
 protected:
  ToolkitFixture();
  ~ToolkitFixture() override;

  /// Serves events until the condition holds; fails the test after half a minute.
  void PumpUntil(const std::function<bool()>& condition, const char* what);
  /// Serves the events that are there.
  void Pump();

  /// Synthesised events, delivered through the platform's own window, at a
  /// point of the widget. The real pointer is moved there first, because
  /// widgets ask the platform where it is.
  void SendMouse(NSEventType type, HXObject& widget, HXPoint point, int clickCount = 1,
                 NSUInteger modifiers = 0);
  void Click(HXObject& widget, HXPoint point);
  /// `deltaY` in lines, positive away from the user.
  void SendWheel(HXObject& widget, HXPoint point, double deltaY);
  /// A key that goes down, to be posted or sent.
  static NSEvent* KeyDownEvent(const HXWindow& target, NSString* characters);
  /// A key to the window's first responder.
  void SendKey(HXWindow& target, NSString* characters, NSUInteger modifiers = 0);
  void SendKeyUp(HXWindow& target, NSString* characters);

  /// Moves the real pointer to a point of the widget.
  static void WarpPointer(const HXObject& widget, HXPoint point);

  /// Draws the widget (and what lies in it) now and reads it back.
  std::unique_ptr<DrawnPixels> Draw(HXObject& widget);
  /// Reads back what is there of the widget without drawing anything.
  std::unique_ptr<DrawnPixels> ReadBack(HXObject& widget);

  /// Calls `action` from within the run loop, once, as soon as events are served
  /// or after a platform timer of `seconds`; for acting inside a modal run, and
  /// for seeing what has fired by then.
  static void Later(std::function<void()> action, double seconds = 0);

  std::unique_ptr<HXWindow> window;

 private:
  NSAutoreleasePool* pool;
};

/// A widget-like object that records what it is told; the owner in tests of
/// hooks and change callbacks.
class RecordingOwner : public HXObject {
 public:
  RecordingOwner() : HXObject(nullptr) {}
  ~RecordingOwner() override = default;
  HXPoint GetPosition() const override { return {}; }
  void SetPosition(HXPoint) override {}
  HXSize GetSize() const override { return {}; }
  void SetSize(HXSize) override {}

  /// A notification hook.
  void OnEvent(std::uint32_t code) {
    events.push_back(code);
    if (action) action();
  }

  std::vector<std::uint32_t> events;
  /// Run at each event.
  std::function<void()> action;
};
