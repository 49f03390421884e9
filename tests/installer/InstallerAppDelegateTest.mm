#import "installer/Cocoa/InstallerAppDelegate.h"

#include <gtest/gtest.h>

#include "Src/HXUI/HXObjectGuard.h"
#include "installer/Cocoa/MainMenu.h"
#import "tests/Src/HXUI/NativeEvents.h"
#include "tests/installer/WizardFixture.h"

// What the platform asks, and the delegate's own view of the wizard that lives in it.
@interface InstallerAppDelegate (Asked)
- (InstallerUI*)wizard;
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application;
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)application;
@end

namespace {

/// The application's menu, for as long as this lives.
class MainMenu {
 public:
  MainMenu() { InstallMainMenu(); }
  ~MainMenu() { [NSApp setMainMenu:nil]; }
  MainMenu(const MainMenu&) = delete;
  MainMenu& operator=(const MainMenu&) = delete;

  /// Everything in it that is no submenu. Where the commands hang depends on
  /// the platform's style of menus.
  std::vector<id<NSMenuItem>> Commands() const {
    std::vector<id<NSMenuItem>> commands;
    Collect([NSApp mainMenu], commands);
    return commands;
  }

 private:
  static void Collect(NSMenu* menu, std::vector<id<NSMenuItem>>& commands) {
    for (id<NSMenuItem> item in [menu itemArray]) {
      if ([item hasSubmenu]) {
        Collect([item submenu], commands);
      } else {
        commands.push_back(item);
      }
    }
  }
};

NSEvent* CommandQ() { return KeyEvent(NSKeyDown, nil, @"q", NSCommandKeyMask); }

/// The delegate with a wizard of this very machine, on which nothing is installed
/// for the host: the tests' program has no marker document.
class InstallerAppDelegateTest : public WizardFixture {
 protected:
  InstallerAppDelegateTest() : delegate([[InstallerAppDelegate alloc] init]) {}
  ~InstallerAppDelegateTest() override { [delegate release]; }

  InstallerUI& Wizard() const override { return *[delegate wizard]; }
  NSWindow* NativeWindow() { return [Wizard().GetNativeView() window]; }

  void Launch() {
    [delegate applicationDidFinishLaunching:nil];
    PumpUntil([this] { return Wizard().IsKeyWindow(); }, "the wizard to become key");
  }

  NSApplicationTerminateReply AskToTerminate() {
    return [delegate applicationShouldTerminate:NSApp];
  }

  InstallerAppDelegate* delegate;
};

TEST_F(InstallerAppDelegateTest, BuildsTheWizardWithItself) {
  EXPECT_EQ(TitleOf(Wizard()), "Ostrel 3D for After Effects Installer");
  EXPECT_FALSE(Wizard().IsVisible());
  EXPECT_FALSE([NativeWindow() isVisible]);
  EXPECT_EQ(Wizard().GetPage(), InstallerUI::kWelcomePage);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(&Wizard()) % alignof(InstallerUI), 0U);
}

TEST_F(InstallerAppDelegateTest, ShowsTheWizardWhenLaunchingHasFinished) {
  Launch();
  EXPECT_TRUE(Wizard().IsVisible());
  EXPECT_TRUE([NativeWindow() isVisible]);
}

TEST_F(InstallerAppDelegateTest, TheWizardEndsWithIt) {
  const HXObjectGuard guard(&Wizard());
  [delegate release];
  delegate = nil;
  EXPECT_FALSE(guard.IsAlive());
}

TEST_F(InstallerAppDelegateTest, EndsWithTheLastWindow) {
  EXPECT_TRUE([delegate applicationShouldTerminateAfterLastWindowClosed:NSApp]);
}

TEST_F(InstallerAppDelegateTest, QuittingAsksAndNoKeepsRunning) {
  Launch();
  Answer("NO");
  EXPECT_EQ(AskToTerminate(), NSTerminateCancel);
  EXPECT_EQ(messages, std::vector<std::string>{"Exit Installer"});
  EXPECT_FALSE(Wizard().IsClosed());
}

TEST_F(InstallerAppDelegateTest, QuittingAsksAndYesEndsTheApplication) {
  Launch();
  Answer("YES (CANCEL)");
  EXPECT_EQ(AskToTerminate(), NSTerminateNow);
  EXPECT_EQ(messages, std::vector<std::string>{"Exit Installer"});
}

TEST_F(InstallerAppDelegateTest, QuittingAsksNothingOnceTheRunHasEnded) {
  Launch();
  Wizard().installDone.store(true);
  EXPECT_EQ(AskToTerminate(), NSTerminateNow);
  Wizard().installFailed.store(true);
  EXPECT_EQ(AskToTerminate(), NSTerminateNow);
}

TEST_F(InstallerAppDelegateTest, QuittingAsksNothingOnceTheWizardIsClosed) {
  Launch();
  Wizard().Close();
  EXPECT_EQ(AskToTerminate(), NSTerminateNow);
}

TEST_F(InstallerAppDelegateTest, QuittingWaitsForTheMessageThatIsUp) {
  Launch();
  NSApplicationTerminateReply second = NSTerminateNow;
  WithMessage([this, &second](HXPopupDialog& dialog) {
    second = AskToTerminate();
    EXPECT_EQ(Message(), &dialog);
    PressIn(dialog, "NO");
  });
  EXPECT_EQ(AskToTerminate(), NSTerminateCancel);
  EXPECT_EQ(second, NSTerminateCancel);
  EXPECT_EQ(messages.size(), 1U);
}

TEST_F(InstallerAppDelegateTest, TheMenusOneCommandQuits) {
  const MainMenu menu;
  const auto commands = menu.Commands();
  ASSERT_EQ(commands.size(), 1U);
  id<NSMenuItem> quit = commands[0];
  EXPECT_TRUE([[quit title] hasPrefix:@"Quit "]);
  EXPECT_TRUE(sel_isEqual([quit action], @selector(terminate:)));
  EXPECT_TRUE([[quit keyEquivalent] isEqualToString:@"q"]);
  EXPECT_EQ([quit keyEquivalentModifierMask], NSUInteger { NSCommandKeyMask });
}

TEST_F(InstallerAppDelegateTest, TheMenusKeyAsksTheWizard) {
  const MainMenu menu;
  [NSApp setDelegate:delegate];
  Launch();
  Answer("NO");
  EXPECT_TRUE([[NSApp mainMenu] performKeyEquivalent:CommandQ()]);
  EXPECT_EQ(messages, std::vector<std::string>{"Exit Installer"});
  EXPECT_FALSE(Wizard().IsClosed());
  [NSApp setDelegate:nil];
}

}  // namespace
