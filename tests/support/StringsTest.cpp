#include <gtest/gtest.h>

#include "support/Strings.h"

TEST(StringsTest, MakeStringCopiesUpToTheZero) {
  EXPECT_EQ(MakeString("abc"), "abc");
  EXPECT_EQ(MakeString("ab\0cd"), "ab");
  EXPECT_EQ(MakeString("\xFF\xC3\xA4"), "\xFF\xC3\xA4");
  EXPECT_EQ(MakeString(""), "");
}

TEST(StringsTest, MakeStringOfNothingIsEmpty) { EXPECT_EQ(MakeString(nullptr), ""); }

TEST(StringsTest, WideHoldsOneElementPerCharacter) {
  EXPECT_EQ(ToWide(""), L"");
  EXPECT_EQ(ToWide("abc"), L"abc");
  EXPECT_EQ(ToWide("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z"), L"a\u00E4\u20AC\U0001F600z");
}

TEST(StringsTest, WideCoversTheEndsOfEachLength) {
  EXPECT_EQ(ToWide("\x01\x7F"), (std::wstring{0x01, 0x7F}));
  EXPECT_EQ(ToWide("\xC2\x80\xDF\xBF"), (std::wstring{0x80, 0x7FF}));
  EXPECT_EQ(ToWide("\xE0\xA0\x80\xEF\xBF\xBF"), (std::wstring{0x800, 0xFFFF}));
  EXPECT_EQ(ToWide("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"), (std::wstring{0x10000, 0x10FFFF}));
  EXPECT_EQ(ToWide("\xED\x9F\xBF\xEE\x80\x80"), (std::wstring{0xD7FF, 0xE000}));
}

TEST(StringsTest, WideDoesNotComposeCharacters) {
  EXPECT_EQ(ToWide("a\xCC\x88"), (std::wstring{L'a', 0x308}));
}

TEST(StringsTest, WideEndsAtTheFirstZero) {
  EXPECT_EQ(ToWide(std::string("ab\0cd", 5)), L"ab");
  EXPECT_EQ(ToWide(std::string("\0cd", 3)), L"");
  EXPECT_EQ(ToWide(std::string("ab\0\xFF", 4)), L"ab");
}

TEST(StringsTest, WideOfInvalidTextIsEmpty) {
  for (const char* text :
       {"\x80", "\xBF", "ok\xFF", "ok\xFE!", "ok\xC3", "\xC3(", "\xE2\x82", "\xE2\x82(",
        "\xF0\x9F\x98", "\xF0\x9F\x98z", "\xF8\x88\x80\x80\x80", "\xC3\xA4\xA4"}) {
    EXPECT_EQ(ToWide(text), L"") << testing::PrintToString(std::string(text));
  }
}

TEST(StringsTest, WideRefusesOverlongForms) {
  EXPECT_EQ(ToWide("\xC0\x80"), L"");
  EXPECT_EQ(ToWide("\xC1\xBF"), L"");
  EXPECT_EQ(ToWide("\xE0\x9F\xBF"), L"");
  EXPECT_EQ(ToWide("\xF0\x8F\xBF\xBF"), L"");
}

TEST(StringsTest, WideRefusesSurrogatesAndValuesBeyondTheLastCharacter) {
  EXPECT_EQ(ToWide("\xED\xA0\x80"), L"");
  EXPECT_EQ(ToWide("\xED\xBF\xBF"), L"");
  EXPECT_EQ(ToWide("\xF4\x90\x80\x80"), L"");
  EXPECT_EQ(ToWide("\xF7\xBF\xBF\xBF"), L"");
}

TEST(StringsTest, WideCharacterCutByTheZeroIsInvalid) {
  EXPECT_EQ(ToWide(std::string("ab\xE2\x82\0\xAC", 6)), L"");
}

TEST(StringsTest, WideHandlesMillionsOfCharacters) {
  std::string text;
  for (int i = 0; i < 1'000'000; ++i) text += "\xF0\x9F\x98\x80";
  EXPECT_EQ(ToWide(text), std::wstring(1'000'000, L'\U0001F600'));
}

TEST(StringsTest, PrintLineFormatsAndEndsTheLine) {
  testing::internal::CaptureStdout();
  PrintLine("%s=%d (%.2f)", "value", -7, 1.005);
  PrintLine("100%%");
  PrintLine("%s", "");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "value=-7 (1.00)\n100%\n\n");
}

TEST(StringsTest, PrintLineHasNoLengthLimit) {
  const std::string text(1'000'000, 'x');
  testing::internal::CaptureStdout();
  PrintLine("%s", text.c_str());
  EXPECT_EQ(testing::internal::GetCapturedStdout(), text + "\n");
}
