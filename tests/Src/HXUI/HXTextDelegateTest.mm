#import "Src/HXUI/Cocoa/HXTextDelegate.h"

#include "Src/HXUI/HXObjectGuard.h"
#include "Src/HXUI/KeyCode.h"
#include "tests/Src/HXUI/TextFixture.h"

namespace {

class HXTextDelegateTest : public TextFixture {
 protected:
  HXTextDelegateTest()
      : control(new RecordingTextControl(window.get(), log, "text", 0)),
        other(new RecordingTextControl(window.get(), otherLog, "other", 0, {20, 60})) {}

  HXTextDelegate* Delegate() const {
    return static_cast<HXTextDelegate*>([FieldOf(*control) delegate]);
  }

  /// What the platform posts at the end of editing; -1 stands for no movement.
  void PostEndOfEditing(int movement) {
    NSDictionary* info = movement < 0
                             ? [NSDictionary dictionary]
                             : [NSDictionary dictionaryWithObject:[NSNumber numberWithInt:movement]
                                                           forKey:@"NSTextMovement"];
    [[NSNotificationCenter defaultCenter]
        postNotificationName:NSControlTextDidEndEditingNotification
                      object:FieldOf(*control)
                    userInfo:info];
  }

  NSString* Letters(NSUInteger count) {
    return [@"" stringByPaddingToLength:count withString:@"p" startingAtIndex:0];
  }

  RecordingTextControl* control;
  RecordingTextControl* other;
  Log otherLog;
};

// Maximum length

TEST_F(HXTextDelegateTest, PastingTooMuchLeavesTheTextAsItWas) {
  control->SetFocus();
  Paste(@"before");
  Paste(Letters(150));
  EXPECT_EQ(control->GetText(), "before");
  EXPECT_TRUE(control->HasFocus());
  Type(@"x");
  EXPECT_EQ(control->GetText(), "beforex");
}

TEST_F(HXTextDelegateTest, AHundredCharactersFitAndOneMoreDoesNot) {
  control->SetText("");
  control->SetFocus();
  Paste(Letters(100));
  EXPECT_EQ(control->GetText().size(), 100U);
  Type(@"x");
  EXPECT_EQ(control->GetText(), std::string(100, 'p'));
}

TEST_F(HXTextDelegateTest, TheMaximumCanBeChanged) {
  control->SetText("");
  control->SetMaxLength(3);
  control->SetFocus();
  Type(@"abcd");
  EXPECT_EQ(control->GetText(), "abc");
  control->SetMaxLength(5);
  Type(@"defg");
  EXPECT_EQ(control->GetText(), "abcde");
}

TEST_F(HXTextDelegateTest, AMaximumOfNothingTakesNothing) {
  control->SetText("");
  control->SetFocus();
  for (const int maximum : {0, -1}) {
    control->SetMaxLength(maximum);
    Type(@"a");
    EXPECT_EQ(control->GetText(), "");
  }
}

TEST_F(HXTextDelegateTest, ALowerMaximumDoesNotCutWhatIsThere) {
  control->SetText("abcdef");
  control->SetMaxLength(3);
  EXPECT_EQ(control->GetText(), "abcdef");
  control->SetFocus();
  [Editor() setSelectedRange:NSMakeRange(6, 0)];
  Type(@"x");
  EXPECT_EQ(control->GetText(), "abcdef");
}

TEST_F(HXTextDelegateTest, TheCaretStaysWhereTheRefusedCharacterWasTyped) {
  control->SetText("abcd");
  control->SetMaxLength(4);
  control->SetFocus();
  [Editor() setSelectedRange:NSMakeRange(2, 0)];
  Type(@"x");
  EXPECT_EQ(control->GetText(), "abcd");
  EXPECT_TRUE(NSEqualRanges([Editor() selectedRange], NSMakeRange(2, 0)));
}

TEST_F(HXTextDelegateTest, ARefusedChangeCannotBeUndoneIntoTheText) {
  control->SetFocus();
  Paste(@"ab");
  Paste(Letters(150));
  if ([[Editor() undoManager] canUndo]) [[Editor() undoManager] undo];
  EXPECT_EQ(control->GetText(), "ab");
}

TEST_F(HXTextDelegateTest, CharactersAreCountedAsUtf16Units) {
  control->SetText("");
  control->SetMaxLength(2);
  control->SetFocus();
  Paste(@"ö\u5199");
  EXPECT_EQ(control->GetText(), "ö写");
  Paste(@"\U0001F3A5");
  EXPECT_EQ(control->GetText(), "ö写");
}

TEST_F(HXTextDelegateTest, APasswordHasAMaximumToo) {
  auto* password =
      new RecordingTextControl(window.get(), otherLog, "", HXTextControl::kPassword, {20, 100});
  password->SetMaxLength(2);
  password->SetFocus();
  Type(@"abc");
  EXPECT_EQ(password->GetText(), "ab");
}

// End of editing

TEST_F(HXTextDelegateTest, MovementsThatEndTheEditing) {
  for (const int movement :
       std::initializer_list<int>{-1, 0, NSLeftTextMovement, NSRightTextMovement, NSUpTextMovement,
                                  NSDownTextMovement, NSCancelTextMovement}) {
    control->SetFocus();
    log.clear();
    PostEndOfEditing(movement);
    EXPECT_EQ(log, Log{"lost"}) << movement;
    EXPECT_FALSE(control->IsEditing()) << movement;
    PostEndOfEditing(movement);
    EXPECT_EQ(log, Log{"lost"}) << movement;
  }
}

TEST_F(HXTextDelegateTest, ReturnDoesNotEndTheEditing) {
  control->SetFocus();
  log.clear();
  PostEndOfEditing(NSReturnTextMovement);
  EXPECT_TRUE(log.empty());
  EXPECT_TRUE(control->IsEditing());
}

TEST_F(HXTextDelegateTest, TabEndsTheEditingOnlyWhenThereIsAnotherViewToGoTo) {
  for (const int movement : {NSTabTextMovement, NSBacktabTextMovement}) {
    [FieldOf(*control) setNextKeyView:nil];
    control->SetFocus();
    log.clear();
    PostEndOfEditing(movement);
    EXPECT_TRUE(log.empty()) << movement;

    [FieldOf(*control) setNextKeyView:FieldOf(*control)];
    PostEndOfEditing(movement);
    EXPECT_TRUE(log.empty()) << movement;
    EXPECT_TRUE(control->IsEditing());

    [FieldOf(*control) setNextKeyView:FieldOf(*other)];
    PostEndOfEditing(movement);
    EXPECT_EQ(log, Log{"lost"}) << movement;
    EXPECT_FALSE(control->IsEditing());
  }
}

TEST_F(HXTextDelegateTest, TypedReturnKeepsTheFocus) {
  control->SetFocus();
  log.clear();
  Type(@"\r");
  EXPECT_EQ(log, Log{"key 16"});
  EXPECT_TRUE(control->HasFocus());
  EXPECT_TRUE(control->IsEditing());
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_EQ(log, (Log{"key 16", "lost"}));
}

TEST_F(HXTextDelegateTest, TypedTabOutOfTheLastFieldKeepsTheEditing) {
  control->SetFocus();
  log.clear();
  Type(@"\t");
  EXPECT_EQ(log, Log{"key 9"});
  EXPECT_TRUE(control->IsEditing());
}

TEST_F(HXTextDelegateTest, TypedTabGoesToTheNextField) {
  [FieldOf(*control) setNextKeyView:FieldOf(*other)];
  control->SetFocus();
  log.clear();
  Type(@"\t");
  EXPECT_EQ(log, (Log{"key 9", "lost"}));
  EXPECT_EQ(otherLog, Log{"gained"});
  EXPECT_TRUE(other->HasFocus());
}

// Keys

TEST_F(HXTextDelegateTest, FourEditingCommandsBecomeKeys) {
  const struct {
    SEL command;
    const char* entry;
  } table[] = {{@selector(insertNewline:), "key 16"},
               {@selector(cancelOperation:), "key 27"},
               {@selector(insertTab:), "key 9"},
               {@selector(insertBacktab:), "key 25"}};
  for (const auto& row : table) {
    log.clear();
    control->swallows = false;
    EXPECT_FALSE([Delegate() control:FieldOf(*control)
                            textView:nil
                 doCommandBySelector:row.command]);
    control->swallows = true;
    EXPECT_TRUE([Delegate() control:FieldOf(*control)
                           textView:nil
                doCommandBySelector:row.command]);
    EXPECT_EQ(log, (Log{row.entry, row.entry}));
  }
}

TEST_F(HXTextDelegateTest, AnyOtherCommandIsThePlatforms) {
  control->swallows = true;
  for (const SEL command : {
         @selector(moveLeft:), @selector(deleteBackward:), @selector(complete:),
             @selector(insertNewlineIgnoringFieldEditor:)
       }) {
    EXPECT_FALSE([Delegate() control:FieldOf(*control) textView:nil doCommandBySelector:command]);
  }
  EXPECT_TRUE(log.empty());
}

TEST_F(HXTextDelegateTest, TheSinksSeeAKeyFirst) {
  TextSink sink(log, control);
  EXPECT_TRUE([Delegate() keyDown:42]);
  EXPECT_EQ(log, (Log{"sink 13 42", "key 42"}));
}

TEST_F(HXTextDelegateTest, AStoppedKeyNeverReachesTheControl) {
  TextSink sink(log, control);
  sink.stops = true;
  EXPECT_FALSE([Delegate() keyDown:42]);
  EXPECT_EQ(log, Log{"sink 13 42"});
  EXPECT_TRUE([Delegate() control:FieldOf(*control)
                         textView:nil
              doCommandBySelector:@selector(insertTab:)]);
}

TEST_F(HXTextDelegateTest, TypedCommandKeysArriveAsTheirCodes) {
  control->SetFocus();
  control->swallows = true;
  log.clear();
  Type(@"\r\033\t\x19");
  EXPECT_EQ(log, (Log{"key 16", "key 27", "key 9", "key 25"}));
  EXPECT_TRUE(control->HasFocus());
}

TEST_F(HXTextDelegateTest, EscapeThatPassesOpensNothing) {
  control->SetFocus();
  Type(@"te");
  const NSUInteger windows = [[NSApp windows] count];
  Type(@"\033");
  EXPECT_EQ([[NSApp windows] count], windows);
  EXPECT_TRUE(control->HasFocus());
  EXPECT_EQ(control->GetText(), "te");
}

TEST_F(HXTextDelegateTest, TheControlMayBeDeletedAtAKey) {
  control->SetFocus();
  const HXObjectGuard guard(control);
  RecordingTextControl* doomed = control;
  doomed->onKey = [doomed] { delete doomed; };
  Type(@"\t");
  EXPECT_FALSE(guard.IsAlive());
}

TEST_F(HXTextDelegateTest, ASinkMayDeleteTheControl) {
  control->SetFocus();
  const HXObjectGuard guard(control);
  TextSink sink(log, control);
  sink.action = [this] { delete control; };
  log.clear();
  Type(@"\r");
  EXPECT_FALSE(guard.IsAlive());
  EXPECT_EQ(log, Log{"sink 13 16"});
}

TEST_F(HXTextDelegateTest, APasswordMayBeDeletedAtAKey) {
  auto* password =
      new RecordingTextControl(window.get(), otherLog, "", HXTextControl::kPassword, {20, 100});
  password->onKey = [password] { delete password; };
  password->SetFocus();
  const HXObjectGuard guard(password);
  Type(@"a\r");
  EXPECT_FALSE(guard.IsAlive());
  EXPECT_EQ(otherLog, Log{"key 16"});
}

TEST_F(HXTextDelegateTest, WithoutItsControlItSwallowsKeysAndHearsNothing) {
  HXTextDelegate* delegate = [[Delegate() retain] autorelease];
  NSTextField* field = [[FieldOf(*control) retain] autorelease];
  delete control;
  EXPECT_FALSE([delegate keyDown:65]);
  [delegate controlTextDidChange:[NSNotification notificationWithName:@"x" object:field]];
  [delegate controlTextDidEndEditing:[NSNotification notificationWithName:@"x" object:field]];
  EXPECT_TRUE(log.empty());
}

}  // namespace
