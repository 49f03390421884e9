#pragma once

#include "examples/gallery/GalleryView.h"

class HXButton;

/// Text buttons and picture buttons.
class ButtonsView : public GalleryView {
 public:
  ButtonsView(HXObject* parent, EventLog& log);

  std::string Values() const override;

 private:
  void BuildTextButtons();
  void BuildPictureButtons();
  void OnCount(std::uint32_t eventCode);
  void OnSwitchFace(std::uint32_t eventCode);

  HXButton* switchButton = nullptr;
  int clicks = 0;
  int face = 0;
};
