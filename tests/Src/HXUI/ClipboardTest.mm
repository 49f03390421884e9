#include "Src/HXUI/Cocoa/Clipboard.h"

#include "Src/HXUI/Cocoa/Conversions.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

class ClipboardTest : public ToolkitFixture {
 protected:
  static NSPasteboard* Pasteboard() { return [NSPasteboard generalPasteboard]; }
  static std::string Content() {
    return FromNative([Pasteboard() stringForType:NSStringPboardType]);
  }
};

TEST_F(ClipboardTest, TheTextIsThereForEveryProgram) {
  SetClipboardText("a text for others");
  EXPECT_EQ(Content(), "a text for others");
}

TEST_F(ClipboardTest, KeepsLettersOfEveryScript) {
  SetClipboardText("größer, 写真, \xF0\x9F\x8E\xA5\nline two");
  EXPECT_EQ(Content(), "größer, 写真, \xF0\x9F\x8E\xA5\nline two");
}

TEST_F(ClipboardTest, TheTextIsTheOnlyContent) {
  [Pasteboard() declareTypes:[NSArray arrayWithObject:NSFilenamesPboardType] owner:nil];
  SetClipboardText("text");
  EXPECT_TRUE([[Pasteboard() types] containsObject:NSStringPboardType]);
  EXPECT_FALSE([[Pasteboard() types] containsObject:NSFilenamesPboardType]);
}

TEST_F(ClipboardTest, ALaterTextReplacesTheFormerOne) {
  SetClipboardText("first");
  SetClipboardText("second");
  EXPECT_EQ(Content(), "second");
  SetClipboardText("");
  EXPECT_EQ(Content(), "");
}

TEST_F(ClipboardTest, ATextIsCopiedOnce) {
  SetClipboardText("first");
  const NSInteger before = [Pasteboard() changeCount];
  SetClipboardText("second");
  EXPECT_EQ([Pasteboard() changeCount], before + 1);
}

TEST_F(ClipboardTest, InvalidTextLeavesTheClipboardAsItIs) {
  SetClipboardText("kept");
  SetClipboardText("\xFF\xFE");
  EXPECT_EQ(Content(), "kept");
}

}  // namespace
