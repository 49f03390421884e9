#include "tests/installer/WizardFixture.h"

#include <algorithm>
#include <utility>

namespace {

HXPoint MiddleOf(const HXObject& widget) {
  const HXSize size = widget.GetSize();
  return {size.width / 2, size.height / 2};
}

/// Counts how often it is drawn.
class CountedWizard : public InstallerUI {
 public:
  CountedWizard(const std::unique_ptr<HostSources>& sources, const WorldFactory& makeWorld,
                int& drawCount)
      : InstallerUI(sources, makeWorld), draws(drawCount) {}

  using InstallerUI::TurnTo;

  void Draw() override {
    ++draws;
    InstallerUI::Draw();
  }

 private:
  int& draws;
};

bool AreEqual(const DrawnPixels& first, const DrawnPixels& second) {
  const HXSize size = first.GetSize();
  if (second.GetSize() != size) return false;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      if (first.At(x, y) != second.At(x, y)) return false;
    }
  }
  return true;
}

}  // namespace

WizardFixture::~WizardFixture() {
  life.reset();
  script.Release();
  WaitForRun();
  ui.reset();
}

void WizardFixture::AddHosts(const std::vector<std::size_t>& slots) {
  for (const std::size_t slot : slots) {
    const std::string folder = "/Hosts/" + std::to_string(slot);
    const HostSlot& host = kHostCatalogue.at(slot);
    const std::string key(slot == kOtherVersionSlot ? "18.0" : host.preferenceKey);
    if (key.empty()) {
      hosts->AddHost(folder + "/After Effects.app", std::string(host.applicationVersion));
    } else {
      hosts->AddPreference(key, folder + "/Plug-ins");
    }
  }
}

void WizardFixture::AddAllHosts() {
  for (std::size_t slot = 2; slot <= kOtherVersionSlot; ++slot) AddHosts({slot});
}

void WizardFixture::Build() {
  const std::unique_ptr<HostSources> sources = std::move(hosts);
  const auto makeWorld = [this](std::function<void()> redraw) {
    return std::make_unique<ScriptedWorld>(script, std::move(redraw));
  };
  ui = std::make_unique<CountedWizard>(sources, makeWorld, draws);
}

void WizardFixture::BuildAndShow() {
  Build();
  ui->SetVisible(true);
  PumpUntil([this] { return ui->IsKeyWindow(); }, "the wizard to become key");
}

HXSystemButton& WizardFixture::Button(std::size_t index) const {
  return dynamic_cast<HXSystemButton&>(*ui->GetChildren().at(index));
}

std::vector<HXCheckBox*> WizardFixture::CheckBoxes() const {
  std::vector<HXCheckBox*> boxes;
  for (HXObject* child : HostPanel().GetChildren()) {
    if (auto* box = dynamic_cast<HXCheckBox*>(child)) boxes.push_back(box);
  }
  return boxes;
}

HXTextControl& WizardFixture::Agreement() const {
  return *ChildOf<HXTextControl>(*LicencePanel().GetChildren().at(0));
}

void WizardFixture::ExpectRedraw(const std::function<void()>& action) {
  Settle();
  const int before = draws;
  action();
  PumpUntil([this, before] { return draws > before; }, "the wizard to be drawn");
}

void WizardFixture::Settle() {
  int before = -1;
  PumpUntil(
      [&] {
        const bool quiet = draws == before;
        before = draws;
        return quiet;
      },
      "the drawing to end");
}

// What the user does

void WizardFixture::Press(HXObject& widget) { Click(widget, MiddleOf(widget)); }

void WizardFixture::GoToAssets() {
  GoToHosts();
  HostPanel().SetVisible(false);
  static_cast<CountedWizard&>(*ui).TurnTo(InstallerUI::kAssetsPage);
}

void WizardFixture::GoToHosts() {
  GoToLicence();
  Press(NextButton());
}

void WizardFixture::GoToSummary() {
  GoToHosts();
  Press(NextButton());
  ASSERT_EQ(ui->GetPage(), InstallerUI::kSummaryPage);
}

void WizardFixture::StartRun() {
  ASSERT_EQ(ui->GetPage(), InstallerUI::kSummaryPage);
  CountRun();
  Press(NextButton());
}

void WizardFixture::GoToProgress() {
  GoToSummary();
  StartRun();
}

void WizardFixture::GoToFinish() {
  GoToProgress();
  PumpUntil([this] { return ui->GetPage() == InstallerUI::kFinishPage; }, "the finish page");
}

void WizardFixture::WaitForRun() {
  PumpUntil([this] { return script.Count("gone") == startedRuns; }, "the run to end");
}

// Messages

HXPopupDialog* WizardFixture::Message() const {
  const std::vector<HXObject*>& children = Wizard().GetChildren();
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    auto* dialog = dynamic_cast<HXPopupDialog*>(*child);
    if (dialog != nullptr && !dialog->IsClosed()) return dialog;
  }
  return nullptr;
}

void WizardFixture::WhenMessage(std::weak_ptr<bool> alive,
                                std::function<void(HXPopupDialog&)> action,
                                std::function<bool()> condition) {
  if (alive.expired()) return;
  HXPopupDialog* dialog = Message();
  if (dialog == nullptr || !condition()) {
    Later([=, this] {
      if (!alive.expired()) WhenMessage(alive, action, condition);
    });
    return;
  }
  messages.push_back(TitleOf(*dialog));
  action(*dialog);
}

void WizardFixture::WithMessage(std::function<void(HXPopupDialog&)> action,
                                std::function<bool()> condition) {
  const std::weak_ptr<bool> alive = life;
  Later([=, this] {
    if (!alive.expired()) WhenMessage(alive, action, condition);
  });
}

void WizardFixture::Answer(const std::string& buttonLabel) {
  WithMessage([this, buttonLabel](HXPopupDialog& dialog) { PressIn(dialog, buttonLabel); });
}

void WizardFixture::PressIn(const HXObject& dialog, const std::string& buttonLabel) {
  for (HXObject* child : dialog.GetChildren()) {
    const auto* button = dynamic_cast<HXSystemButton*>(child);
    if (button != nullptr && button->GetLabel() == buttonLabel) return Press(*child);
  }
  ADD_FAILURE() << "no button " << buttonLabel;
}

void WizardFixture::PressCloseButton(const HXWindow& target) {
  [[target.GetNativeView() window] performClose:nil];
}

std::string WizardFixture::TitleOf(const HXWindow& target) {
  return [[[target.GetNativeView() window] title] UTF8String];
}

std::vector<std::string> WizardFixture::LabelsOf(const HXObject& dialog) {
  std::vector<std::string> labels;
  for (HXObject* child : dialog.GetChildren()) {
    if (const auto* button = dynamic_cast<HXSystemButton*>(child)) {
      labels.push_back(button->GetLabel());
    }
  }
  return labels;
}

bool WizardFixture::LooksLike(HXPopupDialog& dialog, const std::string& text, bool isQuestion) {
  HXPopupDialog expected(nullptr, "Expected", text, isQuestion, isQuestion, false);
  return LabelsOf(dialog) == LabelsOf(expected) && AreEqual(*Draw(dialog), *Draw(expected));
}
