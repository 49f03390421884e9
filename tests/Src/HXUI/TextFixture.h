#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <string>
#include <vector>

#include "Src/HXUI/HXTextControl.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

using Log = std::vector<std::string>;

/// A text control that records what it is told. Its actions may delete it.
class RecordingTextControl : public HXTextControl {
 public:
  RecordingTextControl(HXObject* parent, Log& sharedLog, const std::string& text,
                       std::uint32_t flags, HXPoint position = {20, 20})
      : HXTextControl(parent, position, {200, 24}, text, flags), log(sharedLog) {}

  void OnFocusGained() override {
    log.push_back("gained");
    Run(onGained);
  }
  void OnFocusLost() override {
    log.push_back("lost");
    Run(onLost);
  }
  bool OnKeyDown(int key) override {
    log.push_back("key " + std::to_string(key));
    const bool pass = !swallows;
    Run(onKey);
    return pass;
  }

  std::function<void()> onGained;
  std::function<void()> onLost;
  std::function<void()> onKey;
  bool swallows = false;

 private:
  static void Run(const std::function<void()>& action) {
    const std::function<void()> copy = action;
    if (copy) copy();
  }

  Log& log;
};

/// An event sink that records the events of one widget and may stop them.
class TextSink : public HXObject {
 public:
  TextSink(Log& sharedLog, const HXObject* watchedSource)
      : HXObject(nullptr), log(sharedLog), watched(watchedSource) {
    AddEventSink(this);
  }
  HXPoint GetPosition() const override { return {}; }
  void SetPosition(HXPoint) override {}
  HXSize GetSize() const override { return {}; }
  void SetSize(HXSize) override {}

  void OnEventSink(HXEventSinkRecord& record) override {
    if (record.source != watched) return;
    log.push_back("sink " + std::to_string(record.kind) + " " + std::to_string(record.parameter));
    if (stops) record.pass = 0;
    const std::function<void()> copy = action;
    if (copy) copy();
  }

  bool stops = false;
  std::function<void()> action;

 private:
  Log& log;
  const HXObject* watched;
};

/// Types into the toolkit's window the way the platform does: through the
/// application's event queue.
class TextFixture : public ToolkitFixture {
 protected:
  NSWindow* NativeWindow() const { return [window->GetNativeView() window]; }

  static NSTextField* FieldOf(const HXTextControl& control) {
    return static_cast<NSTextField*>(control.GetNativeView());
  }
  static NSTextView* TextViewOf(const HXTextControl& control) {
    return static_cast<NSTextView*>(control.GetNativeView());
  }

  /// What the keyboard goes to while a field is being edited.
  NSTextView* Editor() const { return static_cast<NSTextView*>([NativeWindow() firstResponder]); }

  void Type(NSString* characters, NSUInteger modifiers = 0) {
    for (NSUInteger i = 0; i < [characters length]; ++i) {
      NSString* one = [characters substringWithRange:NSMakeRange(i, 1)];
      NSEvent* event = [NSEvent keyEventWithType:NSKeyDown
                                        location:NSZeroPoint
                                   modifierFlags:modifiers
                                       timestamp:0
                                    windowNumber:[NativeWindow() windowNumber]
                                         context:nil
                                      characters:one
                     charactersIgnoringModifiers:one
                                       isARepeat:NO
                                         keyCode:0];
      [NSApp postEvent:event atStart:NO];
      Pump();
    }
  }

  /// Puts text into the field being edited as the clipboard would.
  void Paste(NSString* text) { [Editor() insertText:text]; }

  /// A press and a release at a point of the widget, through the queue, because
  /// text fields fetch the release themselves.
  void ClickInto(HXObject& widget, HXPoint point) {
    const NSPoint location = [widget.GetNativeView() convertPoint:NSMakePoint(point.x, point.y)
                                                           toView:nil];
    for (const NSEventType type : {NSLeftMouseDown, NSLeftMouseUp}) {
      [NSApp postEvent:[NSEvent mouseEventWithType:type
                                          location:location
                                     modifierFlags:0
                                         timestamp:0
                                      windowNumber:[NativeWindow() windowNumber]
                                           context:nil
                                       eventNumber:0
                                        clickCount:1
                                          pressure:1]
               atStart:NO];
    }
    Pump();
  }

  Log log;
};
