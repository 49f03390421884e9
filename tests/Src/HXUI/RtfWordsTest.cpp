#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "Src/HXUI/RtfWords.h"

namespace {

using ::testing::ElementsAre;

/// The words of a document, each with its number and what follows, which must not change it.
std::vector<std::string> WordsOf(const std::string& rtf) {
  std::vector<std::string> words;
  const std::string copy = RtfWords::Replace(
      rtf,
      [&words](std::string_view word, std::string_view number,
               std::string_view after) -> std::optional<std::string> {
        words.push_back(std::string(word) + "|" + std::string(number) + "|" + std::string(after));
        return std::nullopt;
      });
  EXPECT_EQ(copy, rtf);
  return words;
}

TEST(RtfWordsTest, AWordIsLettersAndPerhapsANumber) {
  EXPECT_THAT(WordsOf("{\\rtf1\\b a}"), ElementsAre("rtf|1|\\b a}", "b|| a}"));
  EXPECT_THAT(WordsOf("\\li-20x"), ElementsAre("li|-20|x"));
  EXPECT_THAT(WordsOf("\\li-x"), ElementsAre("li||-x"));
  EXPECT_THAT(WordsOf("\\par"), ElementsAre("par||"));
}

TEST(RtfWordsTest, EscapedCharactersAreNone) {
  EXPECT_THAT(WordsOf("\\\\b \\{b \\'e9b \\~ \\"), ElementsAre());
  EXPECT_THAT(WordsOf("\\\\\\b"), ElementsAre("b||"));
  EXPECT_THAT(WordsOf(""), ElementsAre());
}

TEST(RtfWordsTest, ASubstituteStandsForTheWordAndItsNumber) {
  const auto other = [](std::string_view word, std::string_view,
                        std::string_view) -> std::optional<std::string> {
    if (word == "a") return "";
    if (word == "b") return "\\c1";
    return std::nullopt;
  };
  EXPECT_EQ(RtfWords::Replace("\\a5 x\\b-2\\d3\\\\a", other), " x\\c1\\d3\\\\a");
}

}  // namespace
