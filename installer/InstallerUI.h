#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "Src/HXUI/Cocoa/HXCocoaTimer.h"
#include "Src/HXUI/HXControl.h"
#include "Src/HXUI/HXWindow.h"
#include "installer/HostSources.h"
#include "installer/InstallationWorld.h"
#include "installer/InstallerState.h"

class HXCocoaDC;
class HXComboBox;
class HXPanel;
class HXScrollBar;
class HXSystemButton;
class HXTextPanel;

/// The wizard: the installer's only window, 500 by 360 pixels, with a picture,
/// one page of content at a time and a bar with Cancel, Next and Back. Finds
/// the hosts while it is built, starts the installation run on a thread of its
/// own and follows it with a timer. Owned by the application delegate; starts
/// hidden. Main thread only, except for the status members of its state.
class InstallerUI : public HXWindow, public InstallerState {
 public:
  enum Page : std::uint32_t {
    kWelcomePage = 0,
    kLicencePage = 1,
    kHostPage = 2,
    /// Passed over: there is nothing to choose on it.
    kAssetsPage = 3,
    kSummaryPage = 4,
    kProgressPage = 5,
    kFinishPage = 6,
  };

  /// What the buttons ask for.
  enum CommandId : std::uint32_t {
    kCancelCommand = 1,
    kNextCommand = 10,
    kBackCommand = 11,
    kBrowseHostCommand = 20,
    /// No button of this wizard.
    kBrowseAssetsCommand = 30,
  };

  /// Makes what the run works on; `redraw` may be called from any thread.
  using WorldFactory =
      std::function<std::unique_ptr<InstallationWorld>(std::function<void()> redraw)>;

  /// On the machine that the program runs on.
  InstallerUI();
  /// On any other one; the sources are asked while the wizard is built.
  InstallerUI(const std::unique_ptr<HostSources>& sources, const WorldFactory& makeWorld);
  ~InstallerUI() override;

  void Draw() override;
  /// Shows the finish page or the error once the run has ended.
  void OnTimer(int timerId) override;
  /// The wheel scrolls the agreement or the summary, wherever the pointer is.
  void OnEventSink(HXEventSinkRecord& record) override;
  /// Asks the user, unless the run has ended.
  bool CanClose() override;

  /// The notification hook of every button: on `kLeftUp` does what the sender's
  /// `CommandId` asks for, and redraws.
  void OnCommand(std::uint32_t eventCode);

  /// One of the three places for the assets was chosen (notification
  /// `kChangeDone`): 0 the user's documents, 1 the shared ones, 2 a folder of
  /// the user's own. This wizard has no such controls.
  void OnAssetsChoice(std::uint32_t choice, std::uint32_t notification);

  std::uint32_t GetPage() const { return page; }
  InstallationWorld& GetWorld() { return *world; }

 protected:
  /// Draws this page from now on; panels and buttons are for the caller to change.
  void TurnTo(Page newPage) { page = newPage; }

 private:
  // Building, each its own part of the window.
  void BuildButtons();
  void BuildHostPanel();
  void BuildCustomRow(std::int32_t rowCount);
  void BuildLicencePanel();
  void BuildSummaryPanel();
  HXSystemButton* MakeButton(HXObject* buttonParent, HXPoint position, HXSize size,
                             const char* label, CommandId command);

  // Drawing.
  void DrawPage(HXCocoaDC& dc);
  void DrawAssetsPage(HXCocoaDC& dc);
  void DrawSummaryPage(HXCocoaDC& dc);
  void DrawProgressPage(HXCocoaDC& dc);
  void DrawButtonBar(HXCocoaDC& dc);

  // What the commands do.
  void GoForward();
  void GoBack();
  void LeaveHostPage();
  void StartInstallation();
  void BrowseForHost();
  void BrowseForAssets();
  void ShowNavigation(const char* backLabel, const char* nextLabel);
  void PlaceNavigation(bool wide);
  void ShowMessage(const char* title, const std::string& text);
  bool IsAnyHostChosen() const;

  static void OnCustomToggled(HXObject* target, std::uint32_t command, HXControl* sender,
                              int notification);

  std::uint32_t page = kWelcomePage;
  HXBitmap banner;
  HXSystemButton* cancelButton = nullptr;
  HXSystemButton* nextButton = nullptr;
  HXSystemButton* backButton = nullptr;
  HXPanel* hostPanel = nullptr;
  /// Never built; the page behind it is passed over.
  HXPanel* assetsPanel = nullptr;
  HXPanel* summaryPanel = nullptr;
  HXPanel* licencePanel = nullptr;
  HXSystemButton* browseButton = nullptr;
  HXTextPanel* summaryText = nullptr;
  HXTextPanel* customPathText = nullptr;
  HXScrollBar* summaryScrollBar = nullptr;
  HXScrollBar* licenceScrollBar = nullptr;
  /// Never shown: the custom folder always gets the plug-in it starts with.
  HXComboBox* bitnessList = nullptr;
  std::unique_ptr<InstallationWorld> world;
  HXCocoaTimer pollTimer;
};

/// The whole run for the selections of `ui`; blocks, and ends in its status
/// members. For the run's own thread.
void RunInstallation(InstallerUI& ui);
