#include "examples/gallery/GalleryWindow.h"

#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXLayout.h"
#include "Src/HXUI/HXPanel.h"
#include "Src/HXUI/HXSystemButton.h"
#include "examples/gallery/ButtonsView.h"
#include "examples/gallery/ChoicesView.h"
#include "examples/gallery/ColoursView.h"
#include "examples/gallery/DialogsView.h"
#include "examples/gallery/EventLog.h"
#include "examples/gallery/GalleryStyle.h"
#include "examples/gallery/NumbersView.h"
#include "examples/gallery/PointerView.h"
#include "examples/gallery/ScrollingView.h"
#include "examples/gallery/SearchView.h"
#include "examples/gallery/TextView.h"
#include "examples/gallery/ValuesPanel.h"

namespace {

constexpr HXSize kWindowSize{900, 640};
constexpr std::int32_t kMargin = 10;
constexpr HXSize kNavigationSize{110, 620};
constexpr HXSize kButtonSize{98, 26};
constexpr std::int32_t kButtonDistance = 32;
constexpr HXSize kPagesSize{760, 420};
constexpr HXSize kBottomSize{375, 190};
constexpr std::uint32_t kValuesInterval = 100;
constexpr HXColor kLabel{209, 211, 212, 255};

}  // namespace

GalleryWindow::GalleryWindow() : HXWindow(nullptr, {0, 0}, kWindowSize, "Gallery", kResizable) {
  BuildPanels();
  BuildViews();
  ShowView(0);
  valuesTimer.SetOwner(this, 0);
  valuesTimer.Start(kValuesInterval, false);
  Center();
}

void GalleryWindow::BuildPanels() {
  navigation = new HXPanel(this, {0, 0}, kNavigationSize);
  navigation->SetColor(GalleryStyle::kPage);
  pages = new HXPanel(this, {0, 0}, kPagesSize);
  pages->SetColor(GalleryStyle::kPage);
  values = new ValuesPanel(this, {0, 0}, kBottomSize);
  log = new EventLog(this, {0, 0}, kBottomSize);

  // Layouts only place widgets; the widgets stay the window's own. What is
  // added with `true` shares the space that the others leave.
  auto bottom = std::make_unique<HXLayout>(HXLayout::kRow);
  bottom->AddWidget(values, true);
  bottom->AddGap(kMargin);
  bottom->AddWidget(log, true);

  auto right = std::make_unique<HXLayout>(HXLayout::kColumn);
  right->AddGap(kMargin);
  right->AddWidget(pages, true);
  right->AddGap(kMargin);
  right->AddLayout(std::move(bottom), false);
  right->AddGap(kMargin);

  // A row gives its items all of its height, so the margins above and below
  // need a column of their own.
  auto left = std::make_unique<HXLayout>(HXLayout::kColumn);
  left->AddGap(kMargin);
  left->AddWidget(navigation, true);
  left->AddGap(kMargin);

  auto all = std::make_unique<HXLayout>(HXLayout::kRow);
  all->AddGap(kMargin);
  all->AddLayout(std::move(left), false);
  all->AddGap(kMargin);
  all->AddLayout(std::move(right), true);
  all->AddGap(kMargin);
  SetLayout(std::move(all));
}

void GalleryWindow::BuildViews() {
  AddView(new ButtonsView(pages, *log), "Buttons");
  AddView(new ChoicesView(pages, *log), "Choices");
  AddView(new NumbersView(pages, *log), "Numbers");
  AddView(new TextView(pages, *log), "Text");
  AddView(new SearchView(pages, *log), "Search");
  AddView(new ColoursView(pages, *log), "Colours");
  AddView(new ScrollingView(pages, *log), "Scrolling");
  AddView(new PointerView(pages, *log), "Pointer");
  AddView(new DialogsView(pages, *log, *this), "Dialogs");
}

void GalleryWindow::AddView(GalleryView* view, const char* name) {
  const auto index = static_cast<std::int32_t>(views.size());
  auto* button =
      new HXSystemButton(navigation, {6, 6 + index * kButtonDistance}, kButtonSize, name);
  button->SetHook(this, &GalleryWindow::OnChooseView, static_cast<std::uint32_t>(index));
  buttons.push_back(button);
  views.push_back(view);
}

void GalleryWindow::OnChooseView(std::uint32_t eventCode) {
  if (eventCode == kLeftUp) ShowView(GetSenderId());
}

void GalleryWindow::ShowView(std::size_t index) {
  views[shown]->SetVisible(false);
  buttons[shown]->SetLabelColor(kLabel);
  buttons[shown]->Redraw();
  shown = index;
  views[shown]->SetVisible(true);
  buttons[shown]->SetLabelColor(GalleryStyle::kAccent);
  buttons[shown]->Redraw();
  pages->Redraw();
  ShowValues();
}

void GalleryWindow::ShowValues() { values->SetText(views[shown]->Values()); }

void GalleryWindow::OnSize() {
  for (GalleryView* view : views) view->SetSize(pages->GetSize());
}

void GalleryWindow::OnTimer(int) { ShowValues(); }

void GalleryWindow::Draw() {
  HXCocoaDC dc(this);
  const HXSize size = GetSize();
  dc.SetFillColor(GalleryStyle::kBackground);
  dc.DrawRect({0, 0, size.width, size.height});
}
