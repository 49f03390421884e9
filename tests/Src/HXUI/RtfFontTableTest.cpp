#include <gtest/gtest.h>

#include <cctype>
#include <vector>

#include "Src/HXUI/RtfFontTable.h"

namespace {

/// Answers each family in upper case, except "Keep", and records the questions.
class RtfFontTableTest : public ::testing::Test {
 protected:
  std::string Replace(const std::string& rtf) {
    return RtfFontTable::ReplaceFamilies(rtf, [this](const std::string& family) {
      asked.push_back(family);
      if (family == "Keep") return std::string();
      std::string upper;
      for (const char c : family) {
        upper += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
      }
      return upper;
    });
  }

  std::vector<std::string> asked;
};

TEST_F(RtfFontTableTest, ReplacesEachFamilyOfATableInGroups) {
  EXPECT_EQ(Replace("{\\rtf1{\\fonttbl{\\f0\\fnil\\fcharset0 My Font;}{\\f1\\fswiss Other;}}x}"),
            "{\\rtf1{\\fonttbl{\\f0\\fnil\\fcharset0 MY FONT;}{\\f1\\fswiss OTHER;}}x}");
}

TEST_F(RtfFontTableTest, ReplacesEachFamilyOfATableWithoutGroups) {
  EXPECT_EQ(Replace("{\\rtf1{\\fonttbl\\f0\\fnil One;\n\\f1\\fnil Two;}x}"),
            "{\\rtf1{\\fonttbl\\f0\\fnil ONE;\n\\f1\\fnil TWO;}x}");
}

TEST_F(RtfFontTableTest, AnEmptyAnswerLeavesTheFamily) {
  const std::string rtf = "{\\rtf1{\\fonttbl{\\f0\\fnil Keep;}}x}";
  EXPECT_EQ(Replace(rtf), rtf);
  EXPECT_EQ(asked, std::vector<std::string>{"Keep"});
}

TEST_F(RtfFontTableTest, LeavesTheRestOfTheDocumentAlone) {
  EXPECT_EQ(Replace("{\\rtf1 before;{\\fonttbl{\\f0\\fnil a;}}{\\info{\\title b;}}\\f0 c;}"),
            "{\\rtf1 before;{\\fonttbl{\\f0\\fnil A;}}{\\info{\\title b;}}\\f0 c;}");
}

TEST_F(RtfFontTableTest, LeavesAlternativeNames) {
  EXPECT_EQ(Replace("{\\fonttbl{\\f0\\fnil{\\*\\falt inner;{\\x deep;}}a;}}"),
            "{\\fonttbl{\\f0\\fnil{\\*\\falt inner;{\\x deep;}}A;}}");
}

TEST_F(RtfFontTableTest, LeavesFamiliesWrittenWithEscapes) {
  const std::string rtf = "{\\fonttbl{\\f0\\fnil Caf\\'e9;}}";
  EXPECT_EQ(Replace(rtf).substr(0, 22), rtf.substr(0, 22));
}

TEST_F(RtfFontTableTest, ASignWithABackslashEndsWithItself) {
  EXPECT_EQ(Replace("{\\fonttbl\\f0\\fnil\\~abc;}"), "{\\fonttbl\\f0\\fnil\\~ABC;}");
  EXPECT_EQ(Replace("{\\fonttbl\\f0\\fprq-2 abc;}"), "{\\fonttbl\\f0\\fprq-2 ABC;}");
}

TEST_F(RtfFontTableTest, LeavesADocumentWithoutATable) {
  EXPECT_EQ(Replace("{\\rtf1 plain;}"), "{\\rtf1 plain;}");
  EXPECT_EQ(Replace(""), "");
  EXPECT_TRUE(asked.empty());
}

TEST_F(RtfFontTableTest, KeepsEveryByteOfADocumentCutShortAnywhere) {
  const std::string rtf = "{\\rtf1{\\fonttbl{\\f0\\fnil{\\*\\falt a\\}b;}Keep;}}x\\}";
  for (std::size_t length = 0; length <= rtf.size(); ++length) {
    const std::string part = rtf.substr(0, length);
    EXPECT_EQ(Replace(part), part);
  }
}

}  // namespace
