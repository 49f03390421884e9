#include "installer/InstallerUI.h"

#include <utility>

#include "Src/HXUI/Cocoa/FilePanels.h"
#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXCheckBox.h"
#include "Src/HXUI/HXComboBox.h"
#include "Src/HXUI/HXLayout.h"
#include "Src/HXUI/HXPopupDialog.h"
#include "Src/HXUI/HXScrollBar.h"
#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/HXTextControl.h"
#include "Src/HXUI/HXTextPanel.h"
#include "installer/Cocoa/PlatformHostSources.h"
#include "installer/Cocoa/PlatformInstallationWorld.h"
#include "installer/DataPaths.h"
#include "installer/HostDetection.h"
#include "installer/InstallationRun.h"
#include "installer/InstallerTexts.h"
#include "installer/InstallerThread.h"
#include "resources/Agreement.h"
#include "resources/Pictures.h"

namespace {

constexpr HXSize kWindowSize{500, 360};
constexpr const char* kTitle = "Ostrel 3D for After Effects Installer";
constexpr std::uint32_t kPollInterval = 50;

constexpr HXSize kButtonSize{85, 30};
constexpr HXSize kWideButtonSize{110, 30};
/// Of the buttons' top edge, from the bottom of the window.
constexpr std::int32_t kButtonRise = 40;
constexpr std::int32_t kBarHeight = 50;
constexpr std::int32_t kRowHeight = 25;
/// The agreement and the summary share their page with a scroll bar.
constexpr HXSize kScrolledSize{kWindowSize.width - 217, 50};

constexpr HXColor kBackground{45, 45, 45, 255};
constexpr HXColor kSummaryColor{30, 30, 30, 255};
constexpr HXColor kWhite{255, 255, 255, 255};
constexpr HXColor kTextColor{200, 200, 200, 255};
constexpr HXColor kBarColor{70, 70, 70, 255};
constexpr HXColor kLineColor{100, 100, 100, 255};
constexpr HXColor kTransparent{0, 0, 0, 0};

constexpr const char* kFont = "Verdana";
constexpr float kTextSize = 11;
constexpr float kTitleSize = 15;
constexpr std::int32_t kTextX = 170;

std::unique_ptr<HXLayout> ContentBesideScrollBar(HXObject* content, HXObject* scrollBar) {
  auto row = std::make_unique<HXLayout>(HXLayout::kRow);
  row->AddWidget(content, true);
  row->AddWidget(scrollBar, false);
  return row;
}

std::unique_ptr<InstallationWorld> MakePlatformWorld(std::function<void()> redraw) {
  return std::make_unique<PlatformInstallationWorld>(std::move(redraw));
}

}  // namespace

InstallerUI::InstallerUI()
    : InstallerUI(std::make_unique<PlatformHostSources>(), MakePlatformWorld) {}

InstallerUI::InstallerUI(const std::unique_ptr<HostSources>& sources, const WorldFactory& makeWorld)
    : HXWindow(nullptr, {0, 0}, kWindowSize, kTitle, kWizard),
      world(makeWorld([this] { Redraw(); })) {
  Center();
  BuildButtons();
  banner.LoadFromBytes(kBannerPng.bytes, kBannerPng.length);
  DetectHosts(*sources, *this);
  BuildHostPanel();
  BuildLicencePanel();
  BuildSummaryPanel();
  AddEventSink(this);
  pollTimer.SetOwner(this, 0);
}

InstallerUI::~InstallerUI() = default;

void RunInstallation(InstallerUI& ui) { RunInstallation(ui, ui.GetWorld()); }

// Building

HXSystemButton* InstallerUI::MakeButton(HXObject* buttonParent, HXPoint position, HXSize size,
                                        const char* label, CommandId command) {
  auto* button = new HXSystemButton(buttonParent, position, size, label);
  button->SetHook(this, &InstallerUI::OnCommand, command);
  return button;
}

void InstallerUI::BuildButtons() {
  const HXSize size = GetSize();
  const std::int32_t y = size.height - kButtonRise;
  cancelButton = MakeButton(this, {size.width - 95, y}, kButtonSize, "Cancel", kCancelCommand);
  nextButton = MakeButton(this, {size.width - 210, y}, kButtonSize, "Next >", kNextCommand);
  backButton = MakeButton(this, {size.width - 300, y}, kButtonSize, "< Back", kBackCommand);
  backButton->SetEnabled(false);
}

void InstallerUI::BuildHostPanel() {
  const HXSize size = GetSize();
  hostPanel = new HXPanel(this, {160, 100}, {size.width - 160, size.height - 150});
  hostPanel->SetColor(kBackground);

  std::int32_t rowCount = 0;
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    hostSelected[slot] = hostPath[slot].empty() ? 0 : 1;
    if (slot == kCustomSlot || hostPath[slot].empty()) continue;
    new HXCheckBox(hostPanel, {20, 15 + kRowHeight * rowCount}, &hostSelected[slot],
                   InstallerTexts::HostLabel(*this, slot).c_str());
    ++rowCount;
  }
  BuildCustomRow(rowCount);
  hostPanel->SetVisible(false);
}

void InstallerUI::BuildCustomRow(std::int32_t rowCount) {
  const std::int32_t rowY = 15 + kRowHeight * rowCount;
  const std::int32_t belowY = 35 + kRowHeight * rowCount;

  bitnessList = new HXComboBox(hostPanel, {25, belowY}, "32-bit|64-bit", &customBitness, true);
  bitnessList->SetSize({60, 17});
  bitnessList->SetVisible(false);

  auto* custom = new HXCheckBox(hostPanel, {20, rowY}, &hostSelected[kCustomSlot], "Custom");
  custom->SetChangeHandler(&InstallerUI::OnCustomToggled, this, 1);

  browseButton = MakeButton(hostPanel, {25, belowY}, {60, 20}, "Browse", kBrowseHostCommand);
  browseButton->SetVisible(false);
  customPathText = new HXTextPanel(hostPanel, {90, belowY}, {230, 60});
  customPathText->SetColor(kBackground);
  customPathText->SetVisible(false);
}

void InstallerUI::BuildLicencePanel() {
  const HXSize size = GetSize();
  licencePanel = new HXPanel(this, {180, 60}, {size.width - 200, size.height - 120});
  auto* content = new HXPanel(licencePanel, {0, 0}, {50, 50});
  content->SetColor(kWhite);
  const std::string agreement(reinterpret_cast<const char*>(kAgreementRtf.bytes),
                              kAgreementRtf.length);
  auto* text = new HXTextControl(content, {0, 0}, kScrolledSize, agreement,
                                 HXTextControl::kReadOnly | HXTextControl::kMultiLine);
  text->SetColor(kWhite);
  licenceScrollBar = new HXScrollBar(licencePanel, text, {0, 0}, false);
  licencePanel->SetLayout(ContentBesideScrollBar(content, licenceScrollBar));
  licencePanel->SetVisible(false);
}

void InstallerUI::BuildSummaryPanel() {
  const HXSize size = GetSize();
  summaryPanel = new HXPanel(this, {180, 110}, {size.width - 200, size.height - 170});
  auto* backing = new HXPanel(summaryPanel, {0, 0}, {50, 50});
  backing->SetColor(kSummaryColor);
  summaryText = new HXTextPanel(summaryPanel, {0, 0}, kScrolledSize);
  summaryText->SetColor(kSummaryColor);
  summaryScrollBar = new HXScrollBar(summaryPanel, summaryText, {0, 0}, true);
  summaryPanel->SetLayout(ContentBesideScrollBar(backing, summaryScrollBar));
  summaryPanel->SetVisible(false);
}

// Drawing

void InstallerUI::Draw() {
  const HXSize size = GetSize();
  HXCocoaDC dc(this);
  dc.SetFillColor(kBackground);
  dc.DrawRect({0, 0, size.width, size.height});
  dc.DrawBitmap(banner, {0, 0}, {0, 0});
  dc.SetTextColor(kTextColor);
  dc.SetFont(kFont, HXCocoaDC::kBold, kTitleSize);
  dc.DrawText(kTitle, {kTextX, 20, 0, 0}, 0);
  DrawPage(dc);
  DrawButtonBar(dc);
}

void InstallerUI::DrawPage(HXCocoaDC& dc) {
  const HXSize size = GetSize();
  const HXRect box{kTextX, 70, size.width - kTextX, size.height};
  switch (page) {
    case kWelcomePage:
      dc.SetFont(kFont, 0, kTextSize);
      dc.DrawText(InstallerTexts::Welcome(), box, 0);
      break;
    case kHostPage:
      dc.SetFont(kFont, HXCocoaDC::kBold, kTextSize);
      dc.DrawText(
          "Select which versions of Adobe After Effects you want to install Ostrel 3D on:", box, 0);
      break;
    case kAssetsPage:
      DrawAssetsPage(dc);
      break;
    case kSummaryPage:
      DrawSummaryPage(dc);
      break;
    case kProgressPage:
      DrawProgressPage(dc);
      break;
    case kFinishPage:
      dc.SetFont(kFont, 0, kTextSize);
      dc.DrawText(
          "Ostrel 3D for After Effects has been successfully installed!\n\n"
          "Click Finish to close the installer.",
          box, 0);
      break;
    default:
      break;
  }
}

void InstallerUI::DrawAssetsPage(HXCocoaDC& dc) {
  const HXSize size = GetSize();
  dc.SetFont(kFont, HXCocoaDC::kBold, kTextSize);
  dc.DrawText("Select the location where Ostrel 3D assets will be installed on:",
              {kTextX, 70, size.width - kTextX, size.height}, 0);
  dc.DrawText("Selected location:", {kTextX, 220, size.width - kTextX, size.height}, 0);
  dc.SetFont(kFont, 0, kTextSize);
  dc.DrawText(assetsPath, {kTextX, 235, size.width - 180, size.height}, 0);
}

void InstallerUI::DrawSummaryPage(HXCocoaDC& dc) {
  const HXSize size = GetSize();
  dc.SetFont(kFont, 0, kTextSize);
  dc.DrawText(
      "Click Next to continue with the installation, or click Back if you want to review or "
      "change any settings.",
      {kTextX, 70, size.width - 180, size.height}, 0);
  // Two pixels taller than the panel and not wider: the panel covers the
  // frame's right edge, and its own left edge is inside.
  const HXPoint origin = summaryPanel->GetPosition();
  const HXSize extent = summaryPanel->GetSize();
  dc.SetStroke(kLineColor, 1);
  dc.SetFillColor(kTransparent);
  dc.DrawRect({origin.x - 1, origin.y - 1, extent.width, extent.height + 2});
}

void InstallerUI::DrawProgressPage(HXCocoaDC& dc) {
  const HXSize size = GetSize();
  dc.SetFont(kFont, HXCocoaDC::kBold, kTextSize);
  dc.DrawText("Installing Ostrel 3D for After Effects, please wait...",
              {kTextX, 70, size.width - kTextX, size.height}, 0);
  dc.SetFont(kFont, 0, kTextSize);
  dc.DrawText(InstallerTexts::Progress(*this), {kTextX, 120, size.width - kTextX, size.height}, 0);
}

void InstallerUI::DrawButtonBar(HXCocoaDC& dc) {
  const HXSize size = GetSize();
  const std::int32_t top = size.height - kBarHeight;
  dc.SetStroke(kTransparent, 1);
  dc.SetFillColor(kBarColor);
  dc.DrawRect({0, top, size.width, kBarHeight});
  dc.SetStroke(kLineColor, 1);
  dc.DrawLine({0, top}, {size.width, top});
}

// Events

void InstallerUI::OnEventSink(HXEventSinkRecord& record) {
  if (!IsEnabled() || record.kind != kWheel) return;
  if (page == kLicencePage) licenceScrollBar->ScrollBy(record.parameter);
  if (page == kSummaryPage) summaryScrollBar->ScrollBy(record.parameter);
}

void InstallerUI::OnTimer(int) {
  if (!installDone.load(std::memory_order_acquire)) return;
  pollTimer.Stop();
  if (installFailed.load(std::memory_order_relaxed)) {
    ShowMessage("Unexpected error", InstallerTexts::Failure(*this));
    Close();
    return;
  }
  cancelButton->SetLabel("Finish");
  TurnTo(kFinishPage);
  Redraw();
}

bool InstallerUI::CanClose() {
  if (installDone.load(std::memory_order_acquire)) return true;
  HXPopupDialog dialog(
      this, "Exit Installer",
      "Are you sure you want to cancel Ostrel 3D for After Effects installation?\n\n", true, true,
      false);
  return dialog.RunModal() == 0;
}

void InstallerUI::OnCommand(std::uint32_t eventCode) {
  if (eventCode != kLeftUp) return;
  switch (GetSenderId()) {
    case kCancelCommand:
      RequestClose();
      break;
    case kNextCommand:
      GoForward();
      break;
    case kBackCommand:
      GoBack();
      break;
    case kBrowseHostCommand:
      BrowseForHost();
      break;
    case kBrowseAssetsCommand:
      BrowseForAssets();
      break;
    default:
      break;
  }
  Redraw();
}

void InstallerUI::GoForward() {
  switch (page) {
    case kWelcomePage:
      TurnTo(kLicencePage);
      licencePanel->SetVisible(true);
      backButton->SetEnabled(true);
      ShowNavigation("I DO NOT ACCEPT", "I ACCEPT");
      PlaceNavigation(true);
      break;
    case kLicencePage:
      TurnTo(kHostPage);
      hostPanel->SetVisible(true);
      licencePanel->SetVisible(false);
      ShowNavigation("< Back", "Next >");
      PlaceNavigation(false);
      break;
    case kHostPage:
      LeaveHostPage();
      break;
    case kSummaryPage:
      StartInstallation();
      break;
    default:
      break;
  }
}

void InstallerUI::GoBack() {
  switch (page) {
    case kLicencePage:
      TurnTo(kWelcomePage);
      licencePanel->SetVisible(false);
      backButton->SetEnabled(false);
      // The buttons stay where the agreement's page has put them.
      ShowNavigation("< Back", "Next >");
      break;
    case kHostPage:
      TurnTo(kWelcomePage);
      hostPanel->SetVisible(false);
      backButton->SetEnabled(false);
      break;
    case kAssetsPage:
      TurnTo(kHostPage);
      hostPanel->SetVisible(true);
      if (assetsPanel != nullptr) assetsPanel->SetVisible(false);
      break;
    case kSummaryPage:
      TurnTo(kHostPage);
      hostPanel->SetVisible(true);
      summaryPanel->SetVisible(false);
      break;
    default:
      break;
  }
}

void InstallerUI::ShowNavigation(const char* backLabel, const char* nextLabel) {
  backButton->SetLabel(backLabel);
  nextButton->SetLabel(nextLabel);
}

void InstallerUI::PlaceNavigation(bool wide) {
  const HXSize size = GetSize();
  const std::int32_t y = size.height - kButtonRise;
  nextButton->SetPosition({size.width - (wide ? 225 : 210), y});
  nextButton->SetSize(wide ? kWideButtonSize : kButtonSize);
  backButton->SetPosition({size.width - (wide ? 350 : 300), y});
  backButton->SetSize(wide ? kWideButtonSize : kButtonSize);
}

bool InstallerUI::IsAnyHostChosen() const {
  for (std::size_t slot = 0; slot < kCustomSlot; ++slot) {
    if (hostSelected[slot] != 0) return true;
  }
  return hostSelected[kCustomSlot] != 0 && !hostPath[kCustomSlot].empty();
}

void InstallerUI::LeaveHostPage() {
  if (!IsAnyHostChosen()) {
    ShowMessage("Unable to continue",
                "Please select at least one After Effects\ninstallation to continue.");
    return;
  }
  hostPanel->SetVisible(false);
  TurnTo(kSummaryPage);
  summaryText->SetText(InstallerTexts::Summary(*this));
  summaryPanel->SetVisible(true);
}

void InstallerUI::StartInstallation() {
  TurnTo(kProgressPage);
  summaryPanel->SetVisible(false);
  backButton->SetEnabled(false);
  nextButton->SetEnabled(false);
  pollTimer.Start(kPollInterval, false);
  auto* thread = new InstallerThread(this);
  if (thread->Start()) return;
  delete thread;
  installFailed.store(true, std::memory_order_relaxed);
  installDone.store(true, std::memory_order_release);
}

void InstallerUI::ShowMessage(const char* title, const std::string& text) {
  HXPopupDialog dialog(this, title, text, false, false, false);
  dialog.RunModal();
}

void InstallerUI::BrowseForHost() {
  const std::string folder = ChooseFolder("Custom Folder", "");
  if (folder.empty()) return;
  hostPath[kCustomSlot] = folder;
  customPathText->SetText(folder);
}

void InstallerUI::BrowseForAssets() {
  const std::string folder = ChooseFolder("Custom Folder", assetsPath);
  if (folder.empty()) return;
  assetsPath = folder;
  assetsChoice = {false, false, true};
}

void InstallerUI::OnCustomToggled(HXObject* target, std::uint32_t, HXControl*, int notification) {
  if (notification != kChangeDone) return;
  auto* wizard = static_cast<InstallerUI*>(target);
  const bool show = wizard->hostSelected[kCustomSlot] != 0;
  wizard->browseButton->SetVisible(show);
  wizard->customPathText->SetVisible(show);
}

void InstallerUI::OnAssetsChoice(std::uint32_t choice, std::uint32_t notification) {
  if (notification != kChangeDone) return;
  for (std::size_t i = 0; i < assetsChoice.size(); ++i) assetsChoice[i] = i == choice;
  if (choice == 0) assetsPath = GetAssetsPath(1);
  if (choice == 1) assetsPath = GetAssetsPath(2);
  Redraw();
}
