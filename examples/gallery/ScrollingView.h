#pragma once

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "examples/gallery/GalleryView.h"

class HXScrollBar;

/// Scroll bars with what they scroll, and a picture at several sizes.
class ScrollingView : public GalleryView {
 public:
  ScrollingView(HXObject* parent, EventLog& log);

  /// Turns the wheel into scrolling while the pointer is over a text.
  void OnEventSink(HXEventSinkRecord& record) override;
  std::string Values() const override;

 private:
  /// One text beside its bar.
  struct Column {
    HXPanel* frame;
    HXPanel* content;
    HXScrollBar* bar;
  };

  Column MakeColumn(HXPoint position, int lineCount);
  void BuildPictures();

  Column plain{};
  Column arrows{};
  HXBitmap picture;
};
