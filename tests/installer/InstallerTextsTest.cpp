#include <gtest/gtest.h>

#include <limits>

#include "installer/InstallerTexts.h"
#include "installer/Version.h"
#include "tests/support/CommaLocale.h"

namespace {

std::string VersionAndBuild() {
  return std::string(kPluginVersion) + " (" + std::to_string(kPluginBuild) + ")";
}

TEST(InstallerTextsTest, WelcomeNamesVersionAndBuild) {
  EXPECT_EQ(InstallerTexts::Welcome(),
            "This will install Ostrel 3D " + VersionAndBuild() +
                " plugin on your computer.\n\n"
                "It is recommended that you close all other applications before continuing.\n\n"
                "Click Next to continue, or Cancel to exit the installer.");
}

TEST(InstallerTextsTest, EverySlotHasItsLabel) {
  InstallerState state;
  state.otherVersionName = "18.0";
  const std::array<const char*, kHostSlotCount> labels = {
      "CS3",       "CS4",     "CS5",     "CS5.5",   "CS6",  "CC",   "CC 2014", "CC 2015",
      "CC 2015.3", "CC 2017", "CC 2018", "CC 2019", "2020", "18.0", "Custom"};
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    EXPECT_EQ(InstallerTexts::HostLabel(state, slot), labels[slot]) << slot;
  }
}

TEST(InstallerTextsTest, EveryStepHasItsText) {
  InstallerState state;
  state.otherVersionName = "18.0";
  const std::array<const char*, 16> texts = {
      "Installing CS3 version...",       "Installing CS4 version...",
      "Installing CS5 version...",       "Installing CS5.5 version...",
      "Installing CS6 version...",       "Installing CC version...",
      "Installing CC 2014 version...",   "Installing CC 2015 version...",
      "Installing CC 2015.3 version...", "Installing CC 2017 version...",
      "Installing CC 2018 version...",   "Installing CC 2019 version...",
      "Installing 2020 version...",      "Installing 18.0 version...",
      "Installing Custom version...",    "Installing assets..."};
  for (std::size_t step = 0; step < texts.size(); ++step) {
    state.installStep.store(static_cast<std::int32_t>(step));
    EXPECT_EQ(InstallerTexts::Progress(state), texts[step]) << step;
  }
}

TEST(InstallerTextsTest, OutsideOfTheStepsThereIsPreparation) {
  InstallerState state;
  EXPECT_EQ(InstallerTexts::Progress(state), "Preparing to install...");
  using Limits = std::numeric_limits<std::int32_t>;
  for (const std::int32_t step : {-1, -2, 16, 17, Limits::min(), Limits::max()}) {
    state.installStep.store(step);
    EXPECT_EQ(InstallerTexts::Progress(state), "Preparing to install...") << step;
  }
}

TEST(InstallerTextsTest, SummaryOfNothingIsItsHeading) {
  InstallerState state;
  state.hostPath[12] = "/Unticked/Plug-ins";
  EXPECT_EQ(InstallerTexts::Summary(state), "Installing Ostrel 3D on:\n\n");
}

TEST(InstallerTextsTest, SummaryListsTheSelectedHostsWithTheirFolders) {
  InstallerState state;
  state.hostSelected[12] = 1;
  state.hostPath[12] = "/A/2020/Plug-ins";
  state.hostSelected[10] = 1;
  state.hostPath[10] = "/A/2018/Plug-ins";
  EXPECT_EQ(InstallerTexts::Summary(state),
            "Installing Ostrel 3D on:\n\n"
            "CC 2018: \n/A/2018/Plug-ins\n\n"
            "2020: \n/A/2020/Plug-ins\n\n");
}

TEST(InstallerTextsTest, SummaryListsEverySlotInOrder) {
  InstallerState state;
  state.otherVersionName = "18.0";
  state.hostSelected.fill(1);
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    state.hostPath[slot] = "/" + std::to_string(slot);
  }
  EXPECT_EQ(InstallerTexts::Summary(state),
            "Installing Ostrel 3D on:\n\n"
            "CS3: \n/0\n\nCS4: \n/1\n\nCS5: \n/2\n\nCS5.5: \n/3\n\nCS6: \n/4\n\nCC: \n/5\n\n"
            "CC 2014: \n/6\n\nCC 2015: \n/7\n\nCC 2015.3: \n/8\n\nCC 2017: \n/9\n\n"
            "CC 2018: \n/10\n\nCC 2019: \n/11\n\n2020: \n/12\n\n18.0: \n/13\n\n"
            "Custom: \n/14\n\n");
}

TEST(InstallerTextsTest, SummaryListsASelectedHostWithoutAFolderToo) {
  InstallerState state;
  state.hostSelected[0] = 1;
  EXPECT_EQ(InstallerTexts::Summary(state), "Installing Ostrel 3D on:\n\nCS3: \n\n\n");
}

TEST(InstallerTextsTest, SummaryLeavesOutTheCustomSlotWithoutAFolder) {
  InstallerState state;
  state.hostSelected[kCustomSlot] = 1;
  EXPECT_EQ(InstallerTexts::Summary(state), "Installing Ostrel 3D on:\n\n");
}

TEST(InstallerTextsTest, SummaryLeavesOutTheCustomFolderThatIsNotSelected) {
  InstallerState state;
  state.hostSelected[9] = 1;
  state.hostPath[9] = "/A";
  state.hostPath[kCustomSlot] = "/B";
  EXPECT_EQ(InstallerTexts::Summary(state), "Installing Ostrel 3D on:\n\nCC 2017: \n/A\n\n");
}

TEST(InstallerTextsTest, FailureEndsInTheErrorsNumber) {
  InstallerState state;
  EXPECT_EQ(InstallerTexts::Failure(state),
            "An error occurred while installing Ostrel 3D.\nPlease contact support.\n"
            "Error code:0");
  state.installError.store(-60005);
  EXPECT_EQ(InstallerTexts::Failure(state),
            "An error occurred while installing Ostrel 3D.\nPlease contact support.\n"
            "Error code:-60005");
}

TEST(InstallerTextsTest, NumbersAreTheSameForAUserWithADecimalComma) {
  const CommaLocale locale;
  EXPECT_NE(InstallerTexts::Welcome().find(VersionAndBuild()), std::string::npos);
  InstallerState state;
  state.installError = 12345;
  EXPECT_TRUE(InstallerTexts::Failure(state).ends_with("Error code:12345"));
}

}  // namespace
