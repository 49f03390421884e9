#include <filesystem>

#include "tests/endtoend/EndToEndTest.h"

namespace {

using FailureTest = EndToEndTest;

TEST_F(FailureTest, RefusedRightsChangeNothing) {
  machine.Furnish();
  machine.GiveToNobody();
  Start(User::kOrdinary);
  ASSERT_NO_FATAL_FAILURE(GoOnToTheError());
  EXPECT_TRUE(IsUntouched());
}

TEST_F(FailureTest, EscapeAndTheCloseButtonEndItToo) {
  machine.Furnish();
  std::filesystem::remove(machine.InstallerProgram() + "Helper");
  for (const bool escape : {true, false}) {
    Start();
    ASSERT_TRUE(wizard.GoTo(Page::kSummary));
    wizard.Click(Wizard::kNext);
    const MessageBox message = Box(MessageBox::kError);
    ASSERT_TRUE(message.IsUp());
    if (escape) {
      keyboard.Type("Escape");
    } else {
      message.PressCloseButton();
    }
    ASSERT_TRUE(Ends());
    EXPECT_TRUE(IsUntouched());
  }
}

TEST_F(FailureTest, NothingIsAskedWhileTheErrorIsShown) {
  machine.Furnish();
  std::filesystem::remove(machine.InstallerProgram() + "Helper");
  Start();
  ASSERT_TRUE(wizard.GoTo(Page::kSummary));
  wizard.Click(Wizard::kNext);
  const MessageBox message = Box(MessageBox::kError);
  ASSERT_TRUE(message.IsUp());
  wizard.PressCloseButton();
  keyboard.TypeWith("Alt_L", "q");
  EXPECT_TRUE(message.IsUp());
  EXPECT_TRUE(desktop.FindWindows(MessageBox::kQuestion).empty());
  message.Click(Button::kOk);
  EXPECT_TRUE(Ends());
}

// A tool is only ever run on whole paths, so one that is not makes its launch fail.
TEST_F(FailureTest, CopyingThatCannotBeLaunchedForTheFirstHostChangesNothing) {
  machine.AddHost("Another Editor", "11.0", "XXXX");
  machine.Register();
  machine.AddUserData();
  machine.SetPreferences(
      {{"13.5", "Plug-ins of 2015"}, {"16.0", machine.MakeFolder("Plug-ins of 2019")}});
  machine.MakeFolder("Plug-ins of 2015");
  Start();
  ASSERT_NO_FATAL_FAILURE(GoOnToTheError());
  EXPECT_TRUE(std::filesystem::is_empty(machine.Path("Plug-ins of 2015")));
  EXPECT_TRUE(IsUntouched());
}

TEST_F(FailureTest, CopyingThatCannotBeLaunchedForALaterHostEndsTheRunThere) {
  machine.Furnish();
  machine.SetPreferences({{"15.0", "Plug-ins of 2018"}, {"16.0", machine.PluginFolder(2)}});
  machine.MakeFolder("Plug-ins of 2018");
  Start();
  ASSERT_NO_FATAL_FAILURE(GoOnToTheError());
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(0)));
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(1)));
  EXPECT_TRUE(std::filesystem::is_empty(machine.Path("Plug-ins of 2018")));
  EXPECT_TRUE(std::filesystem::is_empty(machine.PluginFolder(2)));
  EXPECT_TRUE(std::filesystem::exists(machine.UserData() + "/settings.txt"));
  EXPECT_FALSE(std::filesystem::exists(machine.MachineData()));
}

// The system takes no path of that length, and no message to the helper holds it.
TEST_F(FailureTest, AnEndlessPathEndsTheRun) {
  machine.Furnish();
  machine.SetPreferences({{"15.0", "/" + std::string(70000, 'x')}});
  Start();
  ASSERT_NO_FATAL_FAILURE(GoOnToTheError());
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(0)));
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(1)));
  EXPECT_FALSE(std::filesystem::exists(machine.MachineData()));
}

TEST_F(FailureTest, AMissingPlugInEndsTheRun) {
  machine.Furnish();
  std::filesystem::remove_all(machine.Resource("Ostrel64.plugin"));
  Start();
  ASSERT_NO_FATAL_FAILURE(GoOnToTheError());
  EXPECT_FALSE(std::filesystem::exists(machine.PluginFolder(0) + "/Halvorix/Ostrel.plugin"));
  EXPECT_TRUE(std::filesystem::is_empty(machine.PluginFolder(1)));
  EXPECT_FALSE(std::filesystem::exists(machine.MachineData()));
}

// What a tool does with its rights is not looked at: only that it was launched.
TEST_F(FailureTest, AMissingPlugInFolderIsNoFailure) {
  machine.Furnish();
  std::filesystem::remove(machine.PluginFolder(2));
  Start();
  ASSERT_TRUE(wizard.GoTo(Page::kSummary));
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(wizard.IsOn(Page::kFinish));
  wizard.Click(Wizard::kCancel);
  ASSERT_TRUE(Ends());
  EXPECT_FALSE(std::filesystem::exists(machine.PluginFolder(2)));
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(3)));
  EXPECT_TRUE(IsDataMoved());
}

}  // namespace
