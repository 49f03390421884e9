#include <gtest/gtest.h>

#include "Src/HXUI/HXComboBox.h"
#include "tests/installer/WizardFixture.h"
#include "tests/support/TemporaryFolder.h"

/// Acts once as the user of the folder dialog that comes up next.
@interface FolderPanelUser : NSObject {
 @public
  std::function<void(NSOpenPanel*)> action;
}
- (void)look:(NSTimer*)timer;
@end

@implementation FolderPanelUser
- (void)look:(NSTimer*)timer {
  NSWindow* modal = [NSApp modalWindow];
  if (![modal isKindOfClass:[NSOpenPanel class]] || ![modal isVisible]) return;
  [timer invalidate];
  action(static_cast<NSOpenPanel*>(modal));
}
@end

namespace {

/// The custom folder's row, and the folders chosen in the platform's dialog.
class InstallerUIHostPageTest : public WizardFixture {
 protected:
  void ExpectCustomShown(bool shown) {
    EXPECT_EQ(BrowseButton().IsVisible(), shown);
    EXPECT_EQ([BrowseButton().GetNativeView() isHidden] == NO, shown);
    EXPECT_EQ(CustomPath().IsVisible(), shown);
    EXPECT_EQ([CustomPath().GetNativeView() isHidden] == NO, shown);
    EXPECT_FALSE(ChildOf<HXComboBox>(HostPanel())->IsVisible());
  }

  /// Presses `button`, which brings up the dialog, and does this there.
  void WithFolderPanel(HXObject& button, std::function<void(NSOpenPanel*)> action) {
    bool shown = false;
    FolderPanelUser* user = [[[FolderPanelUser alloc] init] autorelease];
    user->action = [&shown, action](NSOpenPanel* panel) {
      shown = true;
      EXPECT_STREQ([[[panel defaultButtonCell] title] UTF8String], "Custom Folder");
      action(panel);
    };
    NSTimer* timer = [NSTimer timerWithTimeInterval:0.01
                                             target:user
                                           selector:@selector(look:)
                                           userInfo:nil
                                            repeats:YES];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
    Press(button);
    EXPECT_TRUE(shown);
    [timer invalidate];
  }

  void Choose(HXObject& button, const std::string& path) {
    WithFolderPanel(button, [path](NSOpenPanel* panel) {
      NSString* native = [NSString stringWithUTF8String:path.c_str()];
      [panel setDirectoryURL:[NSURL fileURLWithPath:native isDirectory:YES]];
      [[panel defaultButtonCell] performClick:nil];
    });
  }

  static void Cancel(NSOpenPanel* panel) { [panel cancel:nil]; }

  TemporaryFolder folder;
};

TEST_F(InstallerUIHostPageTest, CustomShowsAndHidesBrowseAndPath) {
  AddHosts({9});
  BuildAndShow();
  GoToHosts();
  ExpectCustomShown(false);
  Press(CustomBox());
  ExpectCustomShown(true);
  Press(CustomBox());
  ExpectCustomShown(false);
}

TEST_F(InstallerUIHostPageTest, OtherBoxesLeaveTheCustomRowAlone) {
  AddHosts({9, 10});
  BuildAndShow();
  GoToHosts();
  Press(*CheckBoxes()[0]);
  ExpectCustomShown(false);
  Press(CustomBox());
  Press(*CheckBoxes()[1]);
  ExpectCustomShown(true);
}

TEST_F(InstallerUIHostPageTest, BrowseTakesTheChosenFolder) {
  const std::string chosen = folder.AddFolder("My Plug-ins");
  BuildAndShow();
  GoToHosts();
  Press(CustomBox());
  Choose(BrowseButton(), chosen);
  EXPECT_EQ(ui->hostPath[kCustomSlot], chosen);
  EXPECT_EQ(CustomPath().GetText(), chosen);
  EXPECT_EQ(CustomPath().GetSize().width, 230);
  Press(NextButton());
  EXPECT_EQ(ui->GetPage(), InstallerUI::kSummaryPage);
  EXPECT_EQ(Summary().GetText(), "Installing Ostrel 3D on:\n\nCustom: \n" + chosen + "\n\n");
}

TEST_F(InstallerUIHostPageTest, CancelledBrowseChangesNothing) {
  const std::string chosen = folder.AddFolder("first");
  BuildAndShow();
  GoToHosts();
  Press(CustomBox());
  WithFolderPanel(BrowseButton(), Cancel);
  EXPECT_EQ(ui->hostPath[kCustomSlot], "");
  EXPECT_EQ(CustomPath().GetText(), "");
  EXPECT_EQ(CustomPath().GetSize(), (HXSize{230, 60}));
  Choose(BrowseButton(), chosen);
  WithFolderPanel(BrowseButton(), Cancel);
  EXPECT_EQ(ui->hostPath[kCustomSlot], chosen);
  EXPECT_EQ(CustomPath().GetText(), chosen);
}

TEST_F(InstallerUIHostPageTest, ASecondChoiceReplacesTheFirst) {
  const std::string first = folder.AddFolder("first");
  const std::string second = folder.AddFolder("second");
  BuildAndShow();
  GoToHosts();
  Press(CustomBox());
  Choose(BrowseButton(), first);
  Choose(BrowseButton(), second);
  EXPECT_EQ(ui->hostPath[kCustomSlot], second);
  EXPECT_EQ(CustomPath().GetText(), second);
}

TEST_F(InstallerUIHostPageTest, UntickingCustomKeepsThePathOutOfTheSummary) {
  const std::string chosen = folder.AddFolder("kept");
  AddHosts({9});
  BuildAndShow();
  GoToHosts();
  Press(CustomBox());
  Choose(BrowseButton(), chosen);
  Press(CustomBox());
  ExpectCustomShown(false);
  EXPECT_EQ(ui->hostPath[kCustomSlot], chosen);
  Press(NextButton());
  EXPECT_EQ(Summary().GetText(), "Installing Ostrel 3D on:\n\nCC 2017: \n/Hosts/9/Plug-ins\n\n");
  Press(BackButton());
  Press(CustomBox());
  ExpectCustomShown(true);
  EXPECT_EQ(CustomPath().GetText(), chosen);
}

TEST_F(InstallerUIHostPageTest, AssetsBrowseTakesTheFolderAsTheThirdChoice) {
  const std::string chosen = folder.AddFolder("assets");
  BuildAndShow();
  ui->assetsChoice = {true, false, false};
  auto* button = new HXSystemButton(ui.get(), {170, 200}, {60, 20}, "Assets");
  button->SetHook(ui.get(), &InstallerUI::OnCommand, InstallerUI::kBrowseAssetsCommand);
  WithFolderPanel(*button, Cancel);
  EXPECT_EQ(ui->assetsPath, "");
  EXPECT_EQ(ui->assetsChoice, (std::array<bool, 3>{true, false, false}));
  Choose(*button, chosen);
  EXPECT_EQ(ui->assetsPath, chosen);
  EXPECT_EQ(ui->assetsChoice, (std::array<bool, 3>{false, false, true}));
  EXPECT_EQ(ui->hostPath[kCustomSlot], "");
}

TEST_F(InstallerUIHostPageTest, AssetsBrowseStartsInTheChosenFolder) {
  const std::string chosen = folder.AddFolder("assets");
  BuildAndShow();
  ui->assetsPath = chosen;
  auto* button = new HXSystemButton(ui.get(), {170, 200}, {60, 20}, "Assets");
  button->SetHook(ui.get(), &InstallerUI::OnCommand, InstallerUI::kBrowseAssetsCommand);
  WithFolderPanel(*button,
                  [](NSOpenPanel* panel) { [[panel defaultButtonCell] performClick:nil]; });
  EXPECT_EQ(ui->assetsPath, chosen);
  EXPECT_TRUE(ui->assetsChoice[2]);
}

TEST_F(InstallerUIHostPageTest, TheUnlistedVersionHasItsOwnName) {
  hosts->AddPreference("21.5 beta", "/New/Plug-ins");
  BuildAndShow();
  GoToHosts();
  HXCheckBox& box = *CheckBoxes()[0];
  const auto named = Draw(box);
  // The box of the same name in another window looks the same.
  std::uint8_t ticked = 1;
  auto* expected = new HXCheckBox(window.get(), {0, 0}, &ticked, "21.5 beta");
  const auto picture = Draw(*expected);
  for (int y = 0; y < 14; ++y) {
    for (int x = 0; x < 200; ++x) ASSERT_EQ(named->At(x, y), picture->At(x, y)) << x << " " << y;
  }
  Press(NextButton());
  EXPECT_EQ(Summary().GetText(), "Installing Ostrel 3D on:\n\n21.5 beta: \n/New/Plug-ins\n\n");
}

}  // namespace
