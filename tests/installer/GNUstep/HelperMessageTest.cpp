#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "installer/GNUstep/HelperMessage.h"

namespace {

using Kind = HelperMessage::Kind;
using Words = std::vector<std::string>;

std::string Record(Kind kind, const Words& words) {
  const auto record = HelperMessage(kind, words).Encode();
  EXPECT_TRUE(record.has_value());
  return record.value_or("");
}

class HelperMessageTest : public testing::Test {
 protected:
  const std::string request =
      Record(Kind::kRequest, {"/bin/chmod", "-R", "0755", "/a b/\xC3\xA9\nline"});
};

TEST_F(HelperMessageTest, ComesBackAsItWas) {
  for (const auto kind : {Kind::kHello, Kind::kRequest, Kind::kAnswer}) {
    for (const Words& words :
         {Words{}, Words{""}, Words{"one"}, Words{"", "/a b/\xC3\xA9\nc", ""}}) {
      const auto decoded = HelperMessage::Decode(Record(kind, words));
      ASSERT_TRUE(decoded.has_value());
      EXPECT_EQ(decoded->kind, kind);
      EXPECT_EQ(decoded->words, words);
    }
  }
}

TEST_F(HelperMessageTest, HasTheDocumentedLayout) {
  EXPECT_EQ(Record(Kind::kRequest, {"ab", ""}), std::string("OIH1R\x02"
                                                            "ab\0\0",
                                                            10));
}

TEST_F(HelperMessageTest, RefusesEveryTruncation) {
  for (std::size_t length = 0; length < request.size(); ++length) {
    EXPECT_FALSE(HelperMessage::Decode(request.substr(0, length)).has_value()) << length;
  }
  EXPECT_TRUE(HelperMessage::Decode(request).has_value());
}

TEST_F(HelperMessageTest, RefusesAnythingBehindTheLastWord) {
  EXPECT_FALSE(HelperMessage::Decode(request + '\0').has_value());
  EXPECT_FALSE(HelperMessage::Decode(request + "x").has_value());
  EXPECT_FALSE(HelperMessage::Decode(request + request).has_value());
}

TEST_F(HelperMessageTest, RefusesEveryOtherHeader) {
  for (std::size_t place = 0; place < 4; ++place) {
    std::string changed = request;
    changed[place] = '2';
    EXPECT_FALSE(HelperMessage::Decode(changed).has_value()) << place;
  }
  std::string unknown = request;
  unknown[4] = 'X';
  EXPECT_FALSE(HelperMessage::Decode(unknown).has_value());
}

TEST_F(HelperMessageTest, RefusesAWrongNumberOfWords) {
  for (const int count : {0, 3, 5, 17, 127, 128, 255}) {
    std::string changed = request;
    changed[5] = static_cast<char>(count);
    EXPECT_FALSE(HelperMessage::Decode(changed).has_value()) << count;
  }
}

TEST_F(HelperMessageTest, TakesAsManyWordsAsTheLimitAndNoMore) {
  const HelperMessage most(Kind::kRequest, Words(HelperMessage::kMaxWords, "/a"));
  const HelperMessage tooMany(Kind::kRequest, Words(HelperMessage::kMaxWords + 1, "/a"));
  ASSERT_TRUE(most.Encode().has_value());
  EXPECT_TRUE(HelperMessage::Decode(*most.Encode()).has_value());
  EXPECT_FALSE(tooMany.Encode().has_value());
}

TEST_F(HelperMessageTest, TakesAsManyBytesAsTheLimitAndNoMore) {
  const std::size_t room = HelperMessage::kMaxBytes - 7;
  const std::string longest = Record(Kind::kRequest, {std::string(room, 'x')});
  EXPECT_EQ(longest.size(), HelperMessage::kMaxBytes);
  EXPECT_TRUE(HelperMessage::Decode(longest).has_value());
  EXPECT_FALSE(HelperMessage(Kind::kRequest, {std::string(room + 1, 'x')}).Encode().has_value());

  std::string longer = longest;
  longer.insert(longer.size() - 1, "x");
  EXPECT_FALSE(HelperMessage::Decode(longer).has_value());
}

TEST_F(HelperMessageTest, DoesNotEncodeAZeroByteInAWord) {
  const HelperMessage message(Kind::kRequest, {std::string("/bin/rm\0/etc", 12)});
  EXPECT_FALSE(message.Encode().has_value());
}

TEST_F(HelperMessageTest, CarriesAStatus) {
  for (const int status : {0, 1, -60031, INT_MAX, INT_MIN}) {
    EXPECT_EQ(HelperMessage::Answer(status).Status(), status);
  }
}

TEST_F(HelperMessageTest, HasNoStatusUnlessItIsAnAnswerWithOneNumber) {
  EXPECT_FALSE(HelperMessage(Kind::kRequest, {"0"}).Status().has_value());
  for (const Words& words : {Words{}, Words{""}, Words{"0", "0"}, Words{"0 "}, Words{" 0"},
                             Words{"zero"}, Words{"99999999999"}}) {
    EXPECT_FALSE(HelperMessage(Kind::kAnswer, words).Status().has_value());
  }
}

}  // namespace
