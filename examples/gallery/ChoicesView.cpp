#include "examples/gallery/ChoicesView.h"

#include "Src/HXUI/HXCheckBox.h"
#include "Src/HXUI/HXComboBox.h"
#include "Src/HXUI/HXMenu.h"
#include "Src/HXUI/HXMultiCheckBox.h"
#include "Src/HXUI/HXSystemButton.h"
#include "examples/gallery/GalleryStyle.h"

ChoicesView::ChoicesView(HXObject* parentObject, EventLog& log) : GalleryView(parentObject, log) {
  BuildCheckBoxes();
  BuildComboBoxes();
  BuildMenuButton();
}

void ChoicesView::BuildCheckBoxes() {
  AddHeading({20, 14}, "HXCheckBox");
  // Labels stand on the wizard's background, so the boxes get a panel of it.
  auto* group = new HXPanel(this, {12, 38}, {260, 84});
  group->SetColor(GalleryStyle::kBackground);
  // Controls edit a variable of their owner in place.
  Watch(*new HXCheckBox(group, {8, 8}, &ticked, "Ticked at first"), "Ticked");
  Watch(*new HXCheckBox(group, {8, 35}, &empty, "Empty at first"), "Empty");
  Watch(*new HXCheckBox(group, {8, 62}, nullptr, "Unbound: inert"), "Unbound");
  AddCaption({20, 133}, "The second one's value again");
  Watch(*new HXCheckBox(this, {240, 132}, &empty, nullptr), "No label");

  AddHeading({20, 174}, "HXMultiCheckBox");
  AddCaption({20, 205}, "Three bytes");
  auto* multi = new HXMultiCheckBox(this, {130, 204});
  multi->SetValues(axes.data());
  Watch(*multi, "Axes");
  AddCaption({20, 231}, "Unbound");
  Watch(*new HXMultiCheckBox(this, {130, 230}), "Unbound axes");
}

void ChoicesView::BuildComboBoxes() {
  AddHeading({400, 14}, "HXComboBox");
  AddCaption({400, 46}, "From a text");
  Watch(*new HXComboBox(this, {560, 44}, "Low|Medium|High", &quality, true), "Quality");
  AddCaption({400, 76}, "On a light face");
  Watch(*new HXComboBox(this, {560, 74}, "Low|Medium|High", &quality, false), "Light");

  // The variable gets the item's value, which need not be its position.
  AddCaption({400, 106}, "From a list of items");
  const std::vector<HXComboBoxItem> sizes{{10, "Small"}, {20, "Middle"}, {40, "Large"}};
  Watch(*new HXComboBox(this, {560, 104}, sizes, &size, true), "Size");

  AddCaption({400, 136}, "Values in the text, wider");
  auto* wide = new HXComboBox(this, {560, 134}, "1/Red|2/Green|3/Blue|4/Grey", &colour, true);
  wide->SetSize({160, 17});
  Watch(*wide, "Colour");

  AddCaption({400, 166}, "Unbound");
  new HXComboBox(this, {560, 164}, "Inert", nullptr, true);
}

void ChoicesView::BuildMenuButton() {
  AddHeading({400, 254}, "HXMenu");
  AddCaption({400, 288}, "A menu on a button");
  auto* button = new HXSystemButton(this, {560, 280}, {110, 30}, "Open menu");
  button->SetHook(this, &ChoicesView::OnMenuButton, 0);
}

void ChoicesView::OnMenuButton(std::uint32_t eventCode) {
  if (eventCode != kLeftDown) return;
  HXObject* const button = GetSender();
  // A menu is made for one use. Its indexes are the caller's own; 0 would be
  // taken for "nothing chosen".
  HXMenu more(nullptr);
  more.AddItem(11, "First of the submenu", false, true);
  more.AddItem(12, "Second of the submenu", true, true);
  HXMenu menu(button);
  menu.AddItem(1, "Plain", false, true);
  menu.AddItem(2, "Ticked", true, true);
  menu.AddItem(3, "Disabled", false, false);
  menu.AddSeparator();
  menu.AddSubmenu(more, 4, "More", false, true);
  // Waits until the menu has closed.
  menuChoice = menu.Popup({0, 0});
  Log("Menu: " + std::to_string(menuChoice));
}

std::string ChoicesView::Values() const {
  return Line("ticked", ticked) + Line("empty", empty) +
         Line("axes", std::to_string(axes[0]) + " " + std::to_string(axes[1]) + " " +
                          std::to_string(axes[2])) +
         Line("quality", quality) + Line("size", size) + Line("colour", colour) +
         Line("menu choice", menuChoice);
}
