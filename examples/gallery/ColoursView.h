#pragma once

#include "examples/gallery/GalleryView.h"

/// Colour pickers and what they edit.
class ColoursView : public GalleryView {
 public:
  ColoursView(HXObject* parent, EventLog& log);

  void Draw() override;
  std::string Values() const override;

 private:
  static void OnColour(HXObject* target, std::uint32_t command, HXControl* sender,
                       int notification);

  HXColor warm{255, 128, 0, 255};
  HXColor cool{30, 110, 200, 255};
};
