#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Src/HXUI/HXCheckBox.h"
#include "Src/HXUI/HXPopupDialog.h"
#include "Src/HXUI/HXScrollBar.h"
#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/HXTextControl.h"
#include "Src/HXUI/HXTextPanel.h"
#include "installer/InstallerUI.h"
#include "tests/Src/HXUI/ToolkitFixture.h"
#include "tests/installer/FakeHostSources.h"
#include "tests/installer/WizardFixtureRun.h"

/// The wizard on a machine of values and a real display.
class WizardFixture : public ToolkitFixture {
 protected:
  WizardFixture() = default;
  ~WizardFixture() override;

  /// Lets detection find the hosts of these slots, with the plug-in
  /// folders "/Hosts/<slot>/Plug-ins"; the one of the unlisted version is called 18.0.
  void AddHosts(const std::vector<std::size_t>& slots);
  /// All that can be found.
  void AddAllHosts();
  /// Builds the wizard; it stays hidden.
  void Build();
  void BuildAndShow();

  /// The wizard whose messages are meant; the one that was built here.
  virtual InstallerUI& Wizard() const { return *ui; }

  // The parts of the wizard, as its widget tree has them.

  HXSystemButton& CancelButton() const { return Button(0); }
  HXSystemButton& NextButton() const { return Button(1); }
  HXSystemButton& BackButton() const { return Button(2); }
  HXObject& HostPanel() const { return *ui->GetChildren().at(3); }
  HXObject& LicencePanel() const { return *ui->GetChildren().at(4); }
  HXObject& SummaryPanel() const { return *ui->GetChildren().at(5); }
  /// The boxes of the host page from top to bottom; the last one is "Custom".
  std::vector<HXCheckBox*> CheckBoxes() const;
  HXCheckBox& CustomBox() const { return *CheckBoxes().back(); }
  HXSystemButton& BrowseButton() const { return *ChildOf<HXSystemButton>(HostPanel()); }
  HXTextPanel& CustomPath() const { return *ChildOf<HXTextPanel>(HostPanel()); }
  HXTextControl& Agreement() const;
  HXTextPanel& Summary() const { return *ChildOf<HXTextPanel>(SummaryPanel()); }

  /// The first child of this type; null when there is none.
  template <class Widget>
  static Widget* ChildOf(const HXObject& parent) {
    for (HXObject* child : parent.GetChildren()) {
      if (auto* found = dynamic_cast<Widget*>(child)) return found;
    }
    return nullptr;
  }

  /// Serves events until the wizard is not drawn any more.
  void Settle();
  /// Expects that the wizard is drawn because of `action`.
  void ExpectRedraw(const std::function<void()>& action);

  // What the user does.

  void Press(HXObject& widget);
  /// From the welcome page, each of them.
  void GoToLicence() { Press(NextButton()); }
  void GoToHosts();
  /// The page that no button leads to.
  void GoToAssets();
  void GoToSummary();
  void GoToProgress();
  void GoToFinish();
  /// From the summary page.
  void StartRun();
  /// Tells the fixture of a run that a test has started by itself.
  void CountRun() { ++startedRuns; }
  /// Until the run's thread has let go of everything.
  void WaitForRun();

  // Messages run modally, so what answers one is arranged before it comes up.

  /// The wizard's message on the screen, the topmost one; null without any.
  HXPopupDialog* Message() const;
  /// Runs `action` when a message is up and `condition` holds as well.
  void WithMessage(
      std::function<void(HXPopupDialog&)> action,
      std::function<bool()> condition = [] { return true; });
  /// Answers the next message and keeps its title.
  void Answer(const std::string& buttonLabel);
  void PressIn(const HXObject& dialog, const std::string& buttonLabel);
  static void PressCloseButton(const HXWindow& target);
  static std::string TitleOf(const HXWindow& target);
  static std::vector<std::string> LabelsOf(const HXObject& dialog);
  /// Whether the message looks exactly as one of this text, with "YES
  /// (CANCEL)" and "NO" or else with "OK".
  bool LooksLike(HXPopupDialog& dialog, const std::string& text, bool isQuestion);

  RunScript script;
  std::unique_ptr<FakeHostSources> hosts = std::make_unique<FakeHostSources>();
  std::unique_ptr<InstallerUI> ui;
  /// How often the wizard has been drawn.
  int draws = 0;
  /// The titles of the messages that `WithMessage` has met.
  std::vector<std::string> messages;

 private:
  HXSystemButton& Button(std::size_t index) const;
  void WhenMessage(std::weak_ptr<bool> alive, std::function<void(HXPopupDialog&)> action,
                   std::function<bool()> condition);

  std::size_t startedRuns = 0;
  /// Gone with the fixture, so that what waits for a message gives up.
  std::shared_ptr<bool> life = std::make_shared<bool>(true);
};
