#include "Src/HXUI/HXTextBox.h"

#include "Src/HXUI/HXObjectGuard.h"
#include "Src/HXUI/HXTextBoxOwner.h"
#include "Src/HXUI/KeyCode.h"
#include "tests/Src/HXUI/TextFixture.h"

namespace {

/// A panel that edits something in a text box, with the key rules of a
/// hexadecimal entry.
class HexPanel : public HXPanel, public HXTextBoxOwner {
 public:
  explicit HexPanel(HXObject* parentObject)
      : HXPanel(parentObject, {10, 10}, {300, 60}),
        box(new HXTextBox(this, {5, 5}, {200, 24}, "", 0)) {}

  void OnTextBoxFocusLost(HXTextBox& sender) override {
    EXPECT_EQ(&sender, box);
    ++focusLost;
    if (deletesBox) DeleteBox();
  }

  bool OnTextBoxKeyDown(HXTextBox& sender, int key) override {
    EXPECT_EQ(&sender, box);
    keys.push_back(key);
    if (deletesBox) DeleteBox();
    if (key == kKeyTab || key == kKeyInsertNewline || key == kKeyEscape) return false;
    return !((key >= 'G' && key <= 'Z') || (key >= 'g' && key <= 'z'));
  }

  void DeleteBox() {
    HXTextBox* old = box;
    box = nullptr;
    delete old;
  }

  HXTextBox* box;
  bool deletesBox = false;
  int focusLost = 0;
  std::vector<int> keys;
};

/// An owner that cares about keys only.
class KeysOnlyPanel : public HXPanel, public HXTextBoxOwner {
 public:
  explicit KeysOnlyPanel(HXObject* parentObject) : HXPanel(parentObject, {10, 10}, {300, 60}) {}
  bool OnTextBoxKeyDown(HXTextBox&, int) override { return true; }
};

class HXTextBoxTest : public TextFixture {
 protected:
  HXTextBoxTest() : panel(new HexPanel(window.get())) {}

  HexPanel* panel;
};

TEST_F(HXTextBoxTest, AnOwnerSwallowsTheLettersItDoesNotWant) {
  panel->box->SetFocus();
  Type(@"fgFGzZ09Aa");
  EXPECT_EQ(panel->box->GetText(), "fF09Aa");
  EXPECT_EQ(panel->keys, (std::vector<int>{'f', 'g', 'F', 'G', 'z', 'Z', '0', '9', 'A', 'a'}));
}

TEST_F(HXTextBoxTest, EditingKeysReachTheFieldUnasked) {
  panel->box->SetText("abc");
  panel->box->SetFocus();
  Type([NSString stringWithFormat:@"%C%C", static_cast<unichar>(NSRightArrowFunctionKey),
                                  static_cast<unichar>(NSDeleteCharacter)]);
  EXPECT_EQ(panel->box->GetText(), "ab");
  EXPECT_TRUE(panel->keys.empty());
}

TEST_F(HXTextBoxTest, ReturnEscapeAndTabGoToTheOwner) {
  panel->box->SetFocus();
  Type(@"\r\033\t\x19");
  EXPECT_EQ(panel->keys, (std::vector<int>{kKeyInsertNewline, kKeyEscape, kKeyTab, kKeyBackTab}));
}

TEST_F(HXTextBoxTest, SwallowedTabKeepsTheFocus) {
  auto* next = new HXTextBox(window.get(), {10, 100}, {100, 24}, "", 0);
  [FieldOf(*panel->box) setNextKeyView:FieldOf(*next)];
  panel->box->SetFocus();
  Type(@"\t");
  EXPECT_TRUE(panel->box->HasFocus());
  EXPECT_EQ(panel->focusLost, 0);
}

TEST_F(HXTextBoxTest, TheOwnerHearsOnceThatEditingHasEnded) {
  panel->box->SetFocus();
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_EQ(panel->focusLost, 1);
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_EQ(panel->focusLost, 1);
}

TEST_F(HXTextBoxTest, HidingTheBoxEndsItsEditing) {
  panel->box->SetFocus();
  panel->box->SetVisible(false);
  EXPECT_EQ(panel->focusLost, 1);
  EXPECT_FALSE(panel->box->HasFocus());
}

TEST_F(HXTextBoxTest, WithAnyOtherParentAllKeysPass) {
  HXTextBox box(window.get(), {10, 100}, {100, 24}, "", 0);
  for (const int key : {kKeyTab + 0, kKeyBackTab + 0, kKeyInsertNewline + 0, kKeyEscape + 0, 71}) {
    EXPECT_TRUE(box.OnKeyDown(key)) << key;
  }
  box.OnFocusLost();
  HXTextBox orphan(nullptr, {0, 0}, {100, 24}, "", 0);
  EXPECT_TRUE(orphan.OnKeyDown(kKeyTab));
  orphan.OnFocusLost();
}

TEST_F(HXTextBoxTest, AnOwnerMayLeaveTheEndOfEditingAlone) {
  auto* owner = new KeysOnlyPanel(window.get());
  auto* box = new HXTextBox(owner, {0, 0}, {100, 24}, "", 0);
  box->SetFocus();
  Type(@"x");
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_FALSE(box->IsEditing());
  EXPECT_EQ(box->GetText(), "x");
}

TEST_F(HXTextBoxTest, AnOwnerMayDeleteTheBoxAtAKey) {
  const HXObjectGuard guard(panel->box);
  panel->deletesBox = true;
  panel->box->SetFocus();
  Type(@"ab");
  EXPECT_FALSE(guard.IsAlive());
  EXPECT_EQ(panel->keys, std::vector<int>{'a'});
}

TEST_F(HXTextBoxTest, AnOwnerMayDeleteTheBoxWhenEditingEnds) {
  const HXObjectGuard guard(panel->box);
  panel->deletesBox = true;
  panel->box->SetFocus();
  [NativeWindow() makeFirstResponder:nil];
  EXPECT_FALSE(guard.IsAlive());
  EXPECT_EQ(panel->focusLost, 1);
}

TEST_F(HXTextBoxTest, AnOwnerOnItsWayOutIsNotAsked) {
  panel->box->SetFocus();
  const HXObjectGuard guard(panel->box);
  delete panel;
  EXPECT_FALSE(guard.IsAlive());
  EXPECT_EQ([NativeWindow() firstResponder], NativeWindow());
}

}  // namespace
