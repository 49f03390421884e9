#include <gtest/gtest.h>

#include <limits>

#include "installer/InstallerTexts.h"
#include "tests/support/CommaLocale.h"

namespace {

TEST(InstallerTextsTest, WelcomeNamesVersionAndBuild) {
  EXPECT_EQ(InstallerTexts::Welcome(),
            "This will install Ostrel 3D 2.2.2 (2169) plugin on your computer.\n\n"
            "It is recommended that you close all other applications before continuing.\n\n"
            "Click Next to continue, or Cancel to exit the installer.");
}

// The labels themselves are HostCatalogueTest's.
std::string LabelOf(std::size_t slot) {
  return slot == kOtherVersionSlot ? "18.0" : kHostCatalogue[slot].label;
}

TEST(InstallerTextsTest, EverySlotHasItsLabel) {
  InstallerState state;
  state.otherVersionName = "18.0";
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    EXPECT_EQ(InstallerTexts::HostLabel(state, slot), LabelOf(slot)) << slot;
  }
}

TEST(InstallerTextsTest, EveryStepHasItsText) {
  InstallerState state;
  state.otherVersionName = "18.0";
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    state.installStep.store(static_cast<std::int32_t>(slot));
    EXPECT_EQ(InstallerTexts::Progress(state), "Installing " + LabelOf(slot) + " version...");
  }
  state.installStep.store(8);
  EXPECT_EQ(InstallerTexts::Progress(state), "Installing CC 2015.3 version...");
  state.installStep.store(kDataFolderStep);
  EXPECT_EQ(InstallerTexts::Progress(state), "Installing assets...");
}

TEST(InstallerTextsTest, OutsideOfTheStepsThereIsPreparation) {
  InstallerState state;
  EXPECT_EQ(InstallerTexts::Progress(state), "Preparing to install...");
  using Limits = std::numeric_limits<std::int32_t>;
  for (const std::int32_t step :
       {-1, -2, kDataFolderStep + 1, kDataFolderStep + 2, Limits::min(), Limits::max()}) {
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
  std::string expected = "Installing Ostrel 3D on:\n\n";
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    expected += LabelOf(slot) + ": \n/" + std::to_string(slot) + "\n\n";
  }
  EXPECT_EQ(InstallerTexts::Summary(state), expected);
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
  EXPECT_NE(InstallerTexts::Welcome().find("2.2.2 (2169)"), std::string::npos);
  InstallerState state;
  state.installError = 12345;
  EXPECT_TRUE(InstallerTexts::Failure(state).ends_with("Error code:12345"));
}

}  // namespace
