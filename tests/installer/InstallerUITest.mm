#include "installer/InstallerUI.h"

#include <gtest/gtest.h>

#include "Src/HXUI/HXComboBox.h"
#include "tests/Src/HXUI/PaintedPanel.h"
#include "tests/installer/WizardFixture.h"

namespace {

constexpr HXColor kBackground{45, 45, 45, 255};
constexpr HXColor kSummaryColor{30, 30, 30, 255};
constexpr HXColor kWhite{255, 255, 255, 255};

/// How a freshly built wizard is put together.
class InstallerUITest : public WizardFixture {
 protected:
  static void ExpectPlace(const HXObject& widget, HXPoint position, HXSize size) {
    EXPECT_EQ(widget.GetPosition(), position);
    EXPECT_EQ(widget.GetSize(), size);
  }

  static bool IsShown(const HXObject& widget) {
    return widget.IsVisible() && ![widget.GetNativeView() isHidden];
  }

  static bool IsHidden(const HXObject& widget) {
    return !widget.IsVisible() && [widget.GetNativeView() isHidden];
  }

  NSWindow* NativeWindow() const { return [ui->GetNativeView() window]; }

  /// The x and y of the host page's boxes and of what lies below "Custom".
  void ExpectRows(std::int32_t hostCount) {
    const auto boxes = CheckBoxes();
    ASSERT_EQ(boxes.size(), static_cast<std::size_t>(hostCount) + 1);
    for (std::int32_t row = 0; row <= hostCount; ++row) {
      SCOPED_TRACE(row);
      ExpectPlace(*boxes[static_cast<std::size_t>(row)], {20, 15 + 25 * row}, {200, 14});
    }
    const std::int32_t below = 35 + 25 * hostCount;
    ExpectPlace(*ChildOf<HXComboBox>(HostPanel()), {25, below}, {60, 17});
    ExpectPlace(BrowseButton(), {25, below}, {60, 20});
    ExpectPlace(CustomPath(), {90, below}, {230, 60});
  }

  std::vector<int> Selection() const { return {ui->hostSelected.begin(), ui->hostSelected.end()}; }
};

TEST_F(InstallerUITest, WindowIsHiddenFixedAndNamed) {
  Build();
  EXPECT_FALSE(ui->IsVisible());
  EXPECT_FALSE([NativeWindow() isVisible]);
  EXPECT_EQ(TitleOf(*ui), "Ostrel 3D for After Effects Installer");
  EXPECT_EQ(ui->GetSize(), (HXSize{500, 360}));
  EXPECT_EQ(ui->GetMinSize(), (HXSize{500, 360}));
  EXPECT_EQ(ui->GetParent(), nullptr);
  const NSUInteger style = [NativeWindow() styleMask];
  EXPECT_EQ(style & NSResizableWindowMask, 0U);
  EXPECT_NE(style & NSTitledWindowMask, 0U);
  EXPECT_NE(style & NSClosableWindowMask, 0U);
}

TEST_F(InstallerUITest, WindowIsCentred) {
  Build();
  const NSRect frame = [NativeWindow() frame];
  const NSRect screen = [[NSScreen mainScreen] frame];
  EXPECT_NEAR(NSMidX(frame), NSMidX(screen), 1);
  // Some platforms put a centred window somewhat above the middle.
  EXPECT_GE(NSMidY(frame), NSMidY(screen) - 20);
  EXPECT_LE(NSMaxY(frame), NSMaxY(screen));
}

TEST_F(InstallerUITest, StartsWithNothingUnderWay) {
  Build();
  EXPECT_EQ(ui->GetPage(), InstallerUI::kWelcomePage);
  EXPECT_EQ(ui->installStep.load(), -1);
  EXPECT_EQ(ui->installError.load(), 0);
  EXPECT_FALSE(ui->installDone.load());
  EXPECT_FALSE(ui->installFailed.load());
  EXPECT_EQ(ui->customBitness, 1);
  EXPECT_EQ(ui->assetsChoice, (std::array<bool, 3>{}));
  EXPECT_EQ(ui->assetsPath, "");
  EXPECT_TRUE(script.GetCalls().empty());
}

TEST_F(InstallerUITest, HasThreeButtonsAndThreePanels) {
  Build();
  EXPECT_EQ(ui->GetChildren().size(), 6U);
  struct Expected {
    HXSystemButton& button;
    const char* label;
    HXPoint position;
    bool enabled;
    std::uint32_t command;
  };
  const Expected table[] = {
      {CancelButton(), "Cancel", {405, 320}, true, 1},
      {NextButton(), "Next >", {290, 320}, true, 10},
      {BackButton(), "< Back", {200, 320}, false, 11},
  };
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.label);
    EXPECT_EQ(expected.button.GetLabel(), expected.label);
    ExpectPlace(expected.button, expected.position, {85, 30});
    EXPECT_EQ(expected.button.IsEnabled(), expected.enabled);
    EXPECT_TRUE(IsShown(expected.button));
    EXPECT_EQ(expected.button.GetId(), expected.command);
  }
}

TEST_F(InstallerUITest, HostPanelHoldsBoxesAndTheCustomRow) {
  Build();
  ExpectPlace(HostPanel(), {160, 100}, {340, 210});
  EXPECT_EQ(HostPanel().GetColor(), kBackground);
  EXPECT_TRUE(IsHidden(HostPanel()));
  EXPECT_EQ(HostPanel().GetChildren().size(), 4U);
  EXPECT_EQ(BrowseButton().GetLabel(), "Browse");
  EXPECT_EQ(BrowseButton().GetId(), 20U);
  EXPECT_TRUE(IsHidden(BrowseButton()));
  EXPECT_EQ(CustomPath().GetText(), "");
  EXPECT_EQ(CustomPath().GetColor(), kBackground);
  EXPECT_TRUE(IsHidden(CustomPath()));
}

TEST_F(InstallerUITest, BitnessListIsHiddenWithBothBitnesses) {
  Build();
  const auto* list = ChildOf<HXComboBox>(HostPanel());
  ASSERT_NE(list, nullptr);
  EXPECT_TRUE(IsHidden(*list));
  ASSERT_EQ(list->GetItems().size(), 2U);
  EXPECT_EQ(list->GetItems()[0].text, "32-bit");
  EXPECT_EQ(list->GetItems()[1].text, "64-bit");
}

TEST_F(InstallerUITest, BitnessListShowsTheBitnessOfTheCustomPlugin) {
  BuildAndShow();
  GoToHosts();
  auto* list = ChildOf<HXComboBox>(HostPanel());
  list->SetVisible(true);
  for (std::int32_t bitness : {0, 1}) {
    ui->customBitness = bitness;
    const auto drawn = Draw(*list);
    HXComboBox expected(window.get(), {0, 0}, "32-bit|64-bit", &bitness, true);
    expected.SetSize({60, 17});
    // The corners of the face let the ground show.
    EXPECT_EQ(CountUnlike(*drawn, *Draw(expected), {4, 1, 36, 13}), 0) << bitness;
  }
}

TEST_F(InstallerUITest, LicencePanelHoldsTheAgreementBesideItsScrollBar) {
  Build();
  ExpectPlace(LicencePanel(), {180, 60}, {300, 240});
  EXPECT_TRUE(IsHidden(LicencePanel()));
  ASSERT_EQ(LicencePanel().GetChildren().size(), 2U);
  const HXObject& content = *LicencePanel().GetChildren()[0];
  ExpectPlace(content, {0, 0}, {283, 240});
  EXPECT_EQ(content.GetColor(), kWhite);
  ASSERT_NE(ChildOf<HXScrollBar>(LicencePanel()), nullptr);
  ExpectPlace(*ChildOf<HXScrollBar>(LicencePanel()), {283, 0}, {17, 240});
}

TEST_F(InstallerUITest, AgreementIsReadOnlyRichTextAsTallAsItNeeds) {
  Build();
  EXPECT_EQ(Agreement().GetPosition(), (HXPoint{0, 0}));
  EXPECT_EQ(Agreement().GetSize().width, 283);
  EXPECT_GT(Agreement().GetSize().height, 240);
  EXPECT_EQ(Agreement().GetColor(), kWhite);
  EXPECT_TRUE(Agreement().IsMultiLine());
  auto* view = static_cast<NSTextView*>(Agreement().GetNativeView());
  EXPECT_FALSE([view isEditable]);
  EXPECT_TRUE([view isRichText]);
  const std::string text = Agreement().GetText();
  EXPECT_GT(text.size(), 1000U);
  EXPECT_EQ(text.find("\\rtf"), std::string::npos);
}

TEST_F(InstallerUITest, SummaryPanelHoldsBackingTextAndScrollBar) {
  Build();
  ExpectPlace(SummaryPanel(), {180, 110}, {300, 190});
  EXPECT_TRUE(IsHidden(SummaryPanel()));
  ASSERT_EQ(SummaryPanel().GetChildren().size(), 3U);
  const HXObject& backing = *SummaryPanel().GetChildren()[0];
  ExpectPlace(backing, {0, 0}, {283, 190});
  EXPECT_EQ(backing.GetColor(), kSummaryColor);
  EXPECT_EQ(SummaryPanel().GetChildren()[1], &Summary());
  ExpectPlace(Summary(), {0, 0}, {283, 50});
  EXPECT_EQ(Summary().GetColor(), kSummaryColor);
  EXPECT_EQ(Summary().GetText(), "");
  ASSERT_NE(ChildOf<HXScrollBar>(SummaryPanel()), nullptr);
  ExpectPlace(*ChildOf<HXScrollBar>(SummaryPanel()), {283, 0}, {17, 190});
}

TEST_F(InstallerUITest, WithoutHostsThereIsOnlyCustom) {
  Build();
  ExpectRows(0);
  EXPECT_EQ(Selection(), std::vector<int>(kHostSlotCount, 0));
}

TEST_F(InstallerUITest, ThreeHostsStandInThreePackedRows) {
  AddHosts({12, 2, 10});
  Build();
  ExpectRows(3);
  EXPECT_EQ(CustomBox().GetPosition().y, 90);
  EXPECT_EQ(BrowseButton().GetPosition().y, 110);
}

TEST_F(InstallerUITest, AllHostsThatCanBeFoundStandInRows) {
  AddAllHosts();
  Build();
  ExpectRows(static_cast<std::int32_t>(kOtherVersionSlot) - 1);
  std::vector<int> expected(kHostSlotCount, 1);
  expected[0] = expected[1] = expected[kCustomSlot] = 0;
  EXPECT_EQ(Selection(), expected);
  EXPECT_EQ(ui->hostPath[2], "/Hosts/2/Plug-ins");
  EXPECT_EQ(ui->hostPath[12], "/Hosts/12/Plug-ins");
  EXPECT_EQ(ui->otherVersionName, "18.0");
}

TEST_F(InstallerUITest, FoundHostsStartTickedAndCustomDoesNot) {
  AddHosts({5, 11});
  Build();
  std::vector<int> expected(kHostSlotCount, 0);
  expected[5] = expected[11] = 1;
  EXPECT_EQ(Selection(), expected);
}

TEST_F(InstallerUITest, EachBoxIsBoundToItsSlot) {
  AddHosts({5, 7, kOtherVersionSlot});
  BuildAndShow();
  GoToHosts();
  const std::size_t slots[] = {5, 7, kOtherVersionSlot, kCustomSlot};
  const auto boxes = CheckBoxes();
  ASSERT_EQ(boxes.size(), std::size(slots));
  for (std::size_t row = 0; row < boxes.size(); ++row) {
    std::vector<int> expected = Selection();
    expected[slots[row]] ^= 1;
    Press(*boxes[row]);
    EXPECT_EQ(Selection(), expected) << "row " << row;
  }
}

TEST_F(InstallerUITest, AsksTheMachineOnceWhileItIsBuilt) {
  FakeHostSources* sources = hosts.get();
  sources->AddHost("/A/Host.app", "12.0");
  std::unique_ptr<HostSources> kept = std::move(hosts);
  ui = std::make_unique<InstallerUI>(kept, [this](std::function<void()> redraw) {
    return std::make_unique<ScriptedWorld>(script, std::move(redraw));
  });
  const std::vector<std::string> asked = {"marker", "applications for /Installer/AEFile.aep",
                                          "read /A/Host.app/Contents/Info.plist",
                                          "read /Library/Preferences/host.plist"};
  EXPECT_EQ(sources->asked, asked);
  ui->SetVisible(true);
  GoToHosts();
  Press(BackButton());
  EXPECT_EQ(sources->asked, asked);
}

TEST_F(InstallerUITest, ManyWizardsComeAndGo) {
  for (int i = 0; i < 20; ++i) {
    hosts = std::make_unique<FakeHostSources>();
    AddHosts({9, kOtherVersionSlot});
    BuildAndShow();
    GoToHosts();
    ui.reset();
    Pump();
  }
  EXPECT_TRUE(messages.empty());
}

}  // namespace
