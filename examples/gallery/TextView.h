#pragma once

#include "examples/gallery/GalleryView.h"

class HXTextControl;

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

  HXTextControl* plain = nullptr;
  HXTextControl* password = nullptr;
  HXTextControl* limited = nullptr;
};
