#pragma once

#include "examples/gallery/GalleryView.h"

class HXTextControl;
class LoggingTextControl;

/// Text controls in every style, a text box with its owner, and rich text.
class TextView : public GalleryView {
 public:
  TextView(HXObject* parent, EventLog& log);

  std::string Values() const override;

 private:
  HXTextControl* MakeField(std::int32_t y, const char* caption, const char* text,
                           std::uint32_t flags);
  void BuildFields();
  void BuildBox();
  void BuildRichText();

  /// The field that was made last, of those that can be edited.
  LoggingTextControl* above = nullptr;
  HXTextControl* plain = nullptr;
  HXTextControl* password = nullptr;
  HXTextControl* limited = nullptr;
};
