#include "tests/endtoend/EndToEndTest.h"

namespace {

using NavigationTest = EndToEndTest;

TEST_F(NavigationTest, GoesBackFromTheSummaryOverTheHostsToTheWelcomePage) {
  ASSERT_TRUE(StartOn(Page::kHosts));
  ASSERT_TRUE(wizard.Toggle(1));
  const Picture hosts = wizard.LookWithoutPointer();
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(wizard.IsOn(Page::kSummary));
  wizard.Click(Wizard::kBack);
  ASSERT_TRUE(wizard.IsOn(Page::kHosts));
  EXPECT_EQ(wizard.RowState(0), Row::kTicked);
  EXPECT_EQ(wizard.RowState(1), Row::kUnticked);
  wizard.MoveTo(10, 10);
  EXPECT_TRUE(wizard.Shows({0, 0, 500, 360}, hosts));

  // Not to the agreement: that has been accepted.
  wizard.Click(Wizard::kBack);
  ASSERT_TRUE(wizard.GoTo(Page::kHosts));
  EXPECT_EQ(wizard.RowState(1), Row::kUnticked);
  EXPECT_TRUE(IsUntouched());
}

TEST_F(NavigationTest, TicksChangedAfterTheSummaryChangeIt) {
  ASSERT_TRUE(StartOn(Page::kSummary));
  const Picture all = wizard.Look().Crop(Wizard::kSummaryText);
  wizard.Click(Wizard::kBack);
  ASSERT_TRUE(wizard.IsOn(Page::kHosts));
  ASSERT_TRUE(wizard.Toggle(0));
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(wizard.IsOn(Page::kSummary));
  EXPECT_NE(wizard.Look().Crop(Wizard::kSummaryText), all);
  wizard.Click(Wizard::kBack);
  ASSERT_TRUE(wizard.IsOn(Page::kHosts));
  ASSERT_TRUE(wizard.Toggle(0));
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(wizard.IsOn(Page::kSummary));
  EXPECT_TRUE(wizard.Shows(Wizard::kSummaryText, all));
}

TEST_F(NavigationTest, ARefusedAgreementLeavesTheButtonsWideOnTheWelcomePage) {
  ASSERT_TRUE(StartOn(Page::kWelcome));
  const Picture welcome = wizard.Look();
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(wizard.IsOn(Page::kLicence));
  wizard.Click(Wizard::kWideBack);
  ASSERT_TRUE(wizard.IsOn(Page::kWelcome));
  const Picture refused = wizard.LookWithoutPointer();
  EXPECT_EQ(refused.At(152, 322), Wizard::kDisabledFace);
  EXPECT_EQ(refused.At(258, 348), Wizard::kDisabledFace);
  EXPECT_NE(refused.At(383, 348), Wizard::kDisabledFace);
  EXPECT_TRUE(
      Wizard::Label(refused, Wizard::kWideNext).LooksLike(Wizard::Label(welcome, Wizard::kNext)));
  EXPECT_TRUE(
      Wizard::Label(refused, Wizard::kWideBack).LooksLike(Wizard::Label(welcome, Wizard::kBack)));

  // Forward again the usual way, and the buttons are as they should be.
  wizard.Click(Wizard::kWideNext);
  ASSERT_TRUE(wizard.IsOn(Page::kLicence));
  wizard.Click(Wizard::kWideNext);
  ASSERT_TRUE(wizard.IsOn(Page::kHosts));
  wizard.Click(Wizard::kBack);
  ASSERT_TRUE(wizard.IsOn(Page::kWelcome));
  wizard.MoveTo(10, 10);
  EXPECT_TRUE(wizard.Shows({0, 0, 500, 360}, welcome));
}

TEST_F(NavigationTest, TheAgreementHasItsOwnLabels) {
  ASSERT_TRUE(StartOn(Page::kWelcome));
  const Picture welcome = wizard.Look();
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(wizard.IsOn(Page::kLicence));
  const Picture licence = wizard.Look();
  const Lettering accept = Wizard::Label(licence, Wizard::kWideNext);
  const Lettering refuse = Wizard::Label(licence, Wizard::kWideBack);
  EXPECT_GT(accept.width, Wizard::Label(welcome, Wizard::kNext).width);
  EXPECT_GT(refuse.width, accept.width + 20);
  EXPECT_LT(refuse.width, 110);
  EXPECT_TRUE(
      Wizard::Label(licence, Wizard::kCancel).LooksLike(Wizard::Label(welcome, Wizard::kCancel)));
}

TEST_F(NavigationTest, BackDoesNothingWhileItIsDisabled) {
  ASSERT_TRUE(StartOn(Page::kWelcome));
  const Picture welcome = wizard.LookWithoutPointer();
  wizard.Click(Wizard::kBack);
  wizard.MoveTo(10, 10);
  EXPECT_TRUE(wizard.Shows({0, 0, 500, 360}, welcome));
}

TEST_F(NavigationTest, AMachineWithoutHostsOffersOnlyACustomFolder) {
  Start();
  ASSERT_TRUE(wizard.GoTo(Page::kHosts));
  EXPECT_EQ(wizard.RowState(0), Row::kUnticked);
  EXPECT_EQ(wizard.RowState(1), Row::kAbsent);
}

}  // namespace
