#include "examples/gallery/SearchView.h"

#include <array>

#include "Src/HXUI/HXBrowserSearch.h"
#include "Src/HXUI/HXTextPanel.h"
#include "examples/gallery/GalleryStyle.h"

namespace {

constexpr std::array<const char*, 10> kMaterials{"brass", "bronze", "chrome", "concrete", "copper",
                                                 "glass", "marble", "oak",    "plastic",  "steel"};

}  // namespace

SearchView::SearchView(HXObject* parentObject, EventLog& log) : GalleryView(parentObject, log) {
  AddHeading({20, 14}, "HXBrowserSearch");
  AddCaption({20, 42}, "Type to narrow the list down; Escape or the cross clears.");
  search = new HXBrowserSearch(this, {20, 64}, {320, 30}, "", 0);
  search->SetChangeHandler(&SearchView::OnSearch, this, 0);
  list = new HXTextPanel(this, {26, 110}, {300, 20});
  list->SetColor(GalleryStyle::kPage);

  AddCaption({400, 42}, "With a text from the start");
  filled = new HXBrowserSearch(this, {400, 64}, {220, 30}, "copper", 0);
  Watch(*filled, "Filled");
  ShowMatches();
}

void SearchView::OnSearch(HXObject* target, std::uint32_t, HXControl*, int notification) {
  auto* view = static_cast<SearchView*>(target);
  view->Log("Search: change done (" + std::to_string(notification) + ")");
  view->ShowMatches();
}

void SearchView::ShowMatches() {
  // An idle empty field holds its placeholder as a real text, which its owner
  // has to know.
  std::string wanted = search->GetText();
  if (wanted == "Search...") wanted.clear();
  matches.clear();
  std::string text;
  for (const char* material : kMaterials) {
    const std::string name = material;
    if (name.find(wanted) == std::string::npos) continue;
    matches.push_back(name);
    text += name + "\n";
  }
  list->SetText(text.empty() ? "Nothing found" : text);
}

std::string SearchView::Values() const {
  std::string names;
  for (const std::string& name : matches) names += (names.empty() ? "" : ", ") + name;
  return Line("search", search->GetText()) + Line("filled", filled->GetText()) +
         Line("found", names);
}
