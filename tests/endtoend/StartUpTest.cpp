#include <algorithm>

#include "tests/endtoend/EndToEndTest.h"

namespace {

class StartUpTest : public EndToEndTest {
 protected:
  /// One clear sentence, and not a good end.
  void ExpectRefusalToStart(const std::vector<std::string>& environment) {
    Application installer(machine, environment, User::kRoot);
    EXPECT_GT(installer.WaitForEnd(), 0);
    const std::string errors = installer.Errors();
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
    EXPECT_TRUE(errors.ends_with(".\n")) << errors;
    EXPECT_NE(errors.find("display"), std::string::npos) << errors;
  }
};

TEST_F(StartUpTest, SaysSoWhenThereIsNoDisplay) { ExpectRefusalToStart({}); }

TEST_F(StartUpTest, SaysSoWhenTheDisplayCannotBeReached) {
  ExpectRefusalToStart({"DISPLAY=:64999"});
}

TEST_F(StartUpTest, OpensOneWindowInTheMiddleWithTheKeys) {
  ASSERT_TRUE(StartOn(Page::kWelcome));
  const std::vector<WindowId> windows = desktop.FindWindows(Wizard::kTitle);
  ASSERT_EQ(windows.size(), 1U);
  const Area content = desktop.FindContent(windows.front()).value_or(Area{});
  EXPECT_EQ(content.width, 500);
  EXPECT_EQ(content.height, 360);
  const int centre = content.x + content.width / 2;
  EXPECT_NEAR(centre, 512, 5);
  // The platform's centre is above the middle of the desktop.
  EXPECT_LT(content.y + content.height / 2, 500);
  EXPECT_GT(content.y, 50);
  EXPECT_TRUE(desktop.IsActive(windows.front()));
}

TEST_F(StartUpTest, LeavesTheSettingsOfTheUserAlone) {
  machine.Furnish();
  const Tree home = ReadTree(machine.Path("home"));
  Start();
  ASSERT_TRUE(wizard.GoTo(Page::kWelcome));
  wizard.Click(Wizard::kCancel);
  ASSERT_TRUE(Box(MessageBox::kQuestion).IsUp());
  Box(MessageBox::kQuestion).Click(Button::kYes);
  ASSERT_TRUE(Ends());
  EXPECT_EQ(DescribeDifference(home, ReadTree(machine.Path("home"))), "");
}

}  // namespace
