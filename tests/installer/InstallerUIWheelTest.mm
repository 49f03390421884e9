#include <gtest/gtest.h>

#include "tests/installer/WizardFixture.h"

namespace {

/// The wheel, which scrolls the text of the page wherever the pointer is.
class InstallerUIWheelTest : public WizardFixture {
 protected:
  InstallerUIWheelTest() { AddAllHosts(); }

  int AgreementY() const { return Agreement().GetPosition().y; }
  int SummaryY() const { return Summary().GetPosition().y; }

  /// Turns the wheel one notch towards the user and waits for the animation.
  void TurnOver(HXObject& widget) { SendWheel(widget, {20, 20}, -1); }

  void ExpectNothingScrolls() {
    SCOPED_TRACE(ui->GetPage());
    const int agreement = AgreementY();
    const int summary = SummaryY();
    TurnOver(*ui);
    EXPECT_EQ(AgreementY(), agreement);
    EXPECT_EQ(SummaryY(), summary);
  }
};

TEST_F(InstallerUIWheelTest, ScrollsTheAgreementByTenPixelsANotch) {
  BuildAndShow();
  GoToLicence();
  TurnOver(LicencePanel());
  EXPECT_EQ(AgreementY(), -10);
  SendWheel(LicencePanel(), {20, 20}, -2);
  PumpUntil([this] { return AgreementY() == -30; }, "two more notches");
  SendWheel(LicencePanel(), {20, 20}, 3);
  PumpUntil([this] { return AgreementY() == 0; }, "three notches back");
  EXPECT_EQ(SummaryY(), 0);
}

TEST_F(InstallerUIWheelTest, ScrollsTheSummary) {
  BuildAndShow();
  GoToSummary();
  ASSERT_GT(Summary().GetSize().height, SummaryPanel().GetSize().height);
  TurnOver(SummaryPanel());
  EXPECT_EQ(SummaryY(), -10);
  EXPECT_EQ(AgreementY(), 0);
}

TEST_F(InstallerUIWheelTest, WorksOverEveryViewOfTheApplication) {
  BuildAndShow();
  GoToLicence();
  int y = 0;
  for (HXObject* place : {static_cast<HXObject*>(ui.get()), static_cast<HXObject*>(window.get()),
                          static_cast<HXObject*>(&CancelButton())}) {
    TurnOver(*place);
    y -= 10;
    PumpUntil([this, y] { return AgreementY() == y; }, "a notch");
  }
}

TEST_F(InstallerUIWheelTest, DoesNothingOnTheOtherPages) {
  BuildAndShow();
  ExpectNothingScrolls();
  GoToHosts();
  ExpectNothingScrolls();
  Press(NextButton());
  script.HoldAt("rights");
  StartRun();
  ExpectNothingScrolls();
  script.Release();
  PumpUntil([this] { return ui->GetPage() == InstallerUI::kFinishPage; }, "the finish page");
  ExpectNothingScrolls();
}

TEST_F(InstallerUIWheelTest, DoesNothingWhileAMessageIsUp) {
  BuildAndShow();
  GoToLicence();
  WithMessage([this](HXPopupDialog& dialog) {
    TurnOver(dialog);
    TurnOver(LicencePanel());
    EXPECT_EQ(AgreementY(), 0);
    PressIn(dialog, "NO");
  });
  Press(CancelButton());
  EXPECT_EQ(messages.size(), 1U);
  TurnOver(LicencePanel());
  EXPECT_EQ(AgreementY(), -10);
}

TEST_F(InstallerUIWheelTest, LeavesTheEventToOthersAndOtherEventsAlone) {
  BuildAndShow();
  GoToLicence();
  HXEventSinkRecord wheel{ui.get(), kWheel, -120, 1};
  ui->OnEventSink(wheel);
  EXPECT_EQ(wheel.pass, 1);
  EXPECT_EQ(AgreementY(), -10);
  HXEventSinkRecord key{ui.get(), kKeyDown, -120, 1};
  ui->OnEventSink(key);
  EXPECT_EQ(key.pass, 1);
  EXPECT_EQ(AgreementY(), -10);
}

TEST_F(InstallerUIWheelTest, IgnoresTheWheelWhileDisabled) {
  BuildAndShow();
  GoToLicence();
  ui->SetEnabled(false);
  HXEventSinkRecord wheel{ui.get(), kWheel, -120, 1};
  ui->OnEventSink(wheel);
  EXPECT_EQ(AgreementY(), 0);
  EXPECT_EQ(wheel.pass, 1);
}

TEST_F(InstallerUIWheelTest, StopsAtBothEndsOfTheAgreement) {
  BuildAndShow();
  GoToLicence();
  const int lowest = LicencePanel().GetSize().height - Agreement().GetSize().height;
  ASSERT_LT(lowest, 0);
  SendWheel(LicencePanel(), {20, 20}, -10000);
  PumpUntil([&] { return AgreementY() == lowest; }, "the agreement's end");
  SendWheel(LicencePanel(), {20, 20}, 10000);
  PumpUntil([this] { return AgreementY() == 0; }, "the agreement's beginning");
}

}  // namespace
