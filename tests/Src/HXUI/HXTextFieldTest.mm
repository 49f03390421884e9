#import "Src/HXUI/Cocoa/HXTextField.h"

#include "Src/HXUI/Cocoa/Clipboard.h"
#include "Src/HXUI/HXObjectGuard.h"
#include "tests/Src/HXUI/TextFixture.h"

namespace {

class HXTextFieldTest : public TextFixture {
 protected:
  HXTextFieldTest() : control(new RecordingTextControl(window.get(), log, "", 0)) {}

  RecordingTextControl* control;
};

TEST_F(HXTextFieldTest, TheControlIsToldBeforeTheFieldIsSelected) {
  control->SetText("Search...");
  control->onGained = [this] {
    EXPECT_FALSE(control->IsEditing());
    control->SetText("");
  };
  control->SetFocus();
  EXPECT_TRUE(control->IsEditing());
  EXPECT_EQ([[Editor() string] length], 0U);
}

TEST_F(HXTextFieldTest, ATypedCharacterPassesSinksAndControlBeforeItIsInserted) {
  control->SetFocus();
  log.clear();
  TextSink sink(log, control);
  control->onKey = [this] { EXPECT_EQ(control->GetText(), ""); };
  Type(@"a");
  EXPECT_EQ(control->GetText(), "a");
  EXPECT_EQ(log, (Log{"sink 13 97", "key 97", "sink 15 0"}));
}

TEST_F(HXTextFieldTest, ASwallowedCharacterChangesNothing) {
  control->SetFocus();
  control->swallows = true;
  log.clear();
  TextSink sink(log, control);
  Type(@"g");
  EXPECT_EQ(control->GetText(), "");
  EXPECT_EQ(log, (Log{"sink 13 103", "key 103"}));
}

TEST_F(HXTextFieldTest, ASinkCanStopACharacter) {
  control->SetFocus();
  log.clear();
  TextSink sink(log, control);
  sink.stops = true;
  Type(@"g");
  EXPECT_EQ(control->GetText(), "");
  EXPECT_EQ(log, Log{"sink 13 103"});
}

TEST_F(HXTextFieldTest, EachChangeOfTheTextIsAKeyUpWithoutAKey) {
  control->SetText("ab");
  control->SetFocus();
  log.clear();
  TextSink sink(log, control);
  sink.stops = true;
  [Editor() deleteBackward:nil];
  EXPECT_EQ(control->GetText(), "");
  EXPECT_EQ(log, Log{"sink 15 0"});
}

TEST_F(HXTextFieldTest, TextOfTheProgramIsNoKey) {
  TextSink sink(log, control);
  control->SetText("set");
  control->SetFocus();
  control->SetText("set again");
  EXPECT_EQ(log, Log{"gained"});
}

TEST_F(HXTextFieldTest, PastedTextIsNoKeyButAChange) {
  SetClipboardText("ghij");
  control->SetFocus();
  control->swallows = true;
  log.clear();
  TextSink sink(log, control);
  [Editor() paste:nil];
  EXPECT_EQ(control->GetText(), "ghij");
  EXPECT_EQ(log, Log{"sink 15 0"});
}

TEST_F(HXTextFieldTest, APasswordsKeysConcernNobody) {
  Log passwordLog;
  auto* password =
      new RecordingTextControl(window.get(), passwordLog, "", HXTextControl::kPassword, {20, 60});
  password->SetFocus();
  TextSink sink(passwordLog, password);
  Type(@"secret");
  EXPECT_EQ(password->GetText(), "secret");
  EXPECT_TRUE(passwordLog.empty());
}

TEST_F(HXTextFieldTest, TheControlMayBeDeletedAtATypedCharacter) {
  control->SetFocus();
  const HXObjectGuard guard(control);
  control->onKey = [this] { delete control; };
  Type(@"ab");
  EXPECT_FALSE(guard.IsAlive());
}

TEST_F(HXTextFieldTest, ASinkMayDeleteTheControlAtAChange) {
  control->SetFocus();
  const HXObjectGuard guard(control);
  TextSink sink(log, control);
  sink.action = [this, &guard] {
    if (log.back() == "sink 15 0" && guard.IsAlive()) delete control;
  };
  Type(@"ab");
  EXPECT_FALSE(guard.IsAlive());
}

}  // namespace
