#pragma once

#include "examples/gallery/GalleryView.h"

class HXBrowserSearch;
class HXTextPanel;

/// Search boxes, one of which narrows a list down.
class SearchView : public GalleryView {
 public:
  SearchView(HXObject* parent, EventLog& log);

  std::string Values() const override;

 private:
  static void OnSearch(HXObject* target, std::uint32_t command, HXControl* sender,
                       int notification);
  void ShowMatches();

  HXBrowserSearch* search = nullptr;
  HXBrowserSearch* filled = nullptr;
  HXTextPanel* list = nullptr;
  std::vector<std::string> matches;
};
