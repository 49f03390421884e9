#include <csignal>
#include <functional>

#include "tests/endtoend/EndToEndTest.h"

namespace {

/// Leaving before anything is installed, on one page after the other.
class LeavingTest : public EndToEndTest, public testing::WithParamInterface<Wizard::Page> {
 protected:
  /// After each answer "NO", whichever way it is given, the page is as before.
  void ExpectAllWaysOfNo(const std::function<void()>& ask) {
    const MessageBox question = Box(MessageBox::kQuestion);
    for (const auto& answer : std::initializer_list<std::function<void()>>{
             [&question] { question.Click(Button::kNo); }, [this] { keyboard.Type("Escape"); },
             [&question] { question.PressCloseButton(); }}) {
      ask();
      ASSERT_TRUE(question.IsUp());
      answer();
      ASSERT_TRUE(question.IsGone());
      ASSERT_TRUE(wizard.IsOn(GetParam()));
    }
  }

  void SayYes() {
    const MessageBox question = Box(MessageBox::kQuestion);
    ASSERT_TRUE(question.IsUp());
    question.Click(Button::kYes);
    ASSERT_TRUE(Ends());
    EXPECT_TRUE(IsUntouched());
    EXPECT_EQ(application->Errors(), "");
  }

  void TypeQuit() { keyboard.TypeWith("Alt_L", "q"); }
};

std::string NameOf(const testing::TestParamInfo<Wizard::Page>& information) {
  switch (information.param) {
    case Wizard::Page::kWelcome:
      return "Welcome";
    case Wizard::Page::kLicence:
      return "Agreement";
    case Wizard::Page::kHosts:
      return "Hosts";
    default:
      return "Summary";
  }
}

INSTANTIATE_TEST_SUITE_P(On, LeavingTest,
                         testing::Values(Wizard::Page::kWelcome, Wizard::Page::kLicence,
                                         Wizard::Page::kHosts, Wizard::Page::kSummary),
                         NameOf);

TEST_P(LeavingTest, CancelAsksFirst) {
  ASSERT_TRUE(StartOn(GetParam()));
  ASSERT_NO_FATAL_FAILURE(ExpectAllWaysOfNo([this] { wizard.Click(Wizard::kCancel); }));
  wizard.Click(Wizard::kCancel);
  SayYes();
}

TEST_P(LeavingTest, TheCloseButtonAsksFirst) {
  ASSERT_TRUE(StartOn(GetParam()));
  ASSERT_NO_FATAL_FAILURE(ExpectAllWaysOfNo([this] { wizard.PressCloseButton(); }));
  wizard.PressCloseButton();
  SayYes();
}

TEST_P(LeavingTest, TheQuestionOfAClickedCloseButtonIsActive) {
  ASSERT_TRUE(StartOn(GetParam()));
  wizard.ClickCloseButton();
  SayYes();
}

TEST_P(LeavingTest, QuittingFromTheKeyboardAsksFirst) {
  ASSERT_TRUE(StartOn(GetParam()));
  ASSERT_NO_FATAL_FAILURE(ExpectAllWaysOfNo([this] { TypeQuit(); }));
  TypeQuit();
  SayYes();
}

TEST_P(LeavingTest, OneQuestionAtATime) {
  ASSERT_TRUE(StartOn(GetParam()));
  const MessageBox question = Box(MessageBox::kQuestion);
  TypeQuit();
  ASSERT_TRUE(question.IsUp());
  // Neither of these may bring up another one before "NO" is handled.
  TypeQuit();
  wizard.PressCloseButton();
  EXPECT_TRUE(question.IsUp());
  question.Click(Button::kNo);
  ASSERT_TRUE(question.IsGone());
  ASSERT_TRUE(wizard.IsOn(GetParam()));
  wizard.Click(Wizard::kCancel);
  SayYes();
}

/// What a session or a terminal sends to whatever still runs when it ends.
class LeavingBySignalTest : public EndToEndTest, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Of, LeavingBySignalTest, testing::Values(SIGTERM, SIGINT),
                         [](const testing::TestParamInfo<int>& information) {
                           return information.param == SIGTERM ? "Termination" : "Interruption";
                         });

TEST_P(LeavingBySignalTest, EndsWithoutAQuestion) {
  ASSERT_TRUE(StartOn(Wizard::Page::kHosts));
  application->Send(GetParam());
  EXPECT_EQ(application->WaitForEnd(), 128 + GetParam());
  EXPECT_TRUE(IsUntouched());
  EXPECT_EQ(application->Errors(), "");
}

TEST_P(LeavingBySignalTest, EndsWhileAQuestionIsUp) {
  ASSERT_TRUE(StartOn(Wizard::Page::kHosts));
  wizard.Click(Wizard::kCancel);
  ASSERT_TRUE(Box(MessageBox::kQuestion).IsUp());
  application->Send(GetParam());
  EXPECT_EQ(application->WaitForEnd(), 128 + GetParam());
  EXPECT_TRUE(IsUntouched());
}

}  // namespace
