#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "installer/PropertyListGuard.h"
#include "tests/installer/BinaryListBytes.h"

namespace {

using namespace std::string_literals;

std::string Times(std::size_t count, const std::string& text) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

/// `depth` arrays inside each other.
std::string Nested(std::size_t depth) {
  std::vector<std::string> objects;
  for (std::size_t i = 1; i < depth; ++i) {
    objects.push_back(ArrayBytes({static_cast<std::uint16_t>(i)}));
  }
  objects.push_back(ArrayBytes({}));
  return BinaryListBytes(objects);
}

/// `depth` arrays, each holding the next one twice.
std::string Doubling(std::size_t depth) {
  std::vector<std::string> objects;
  for (std::size_t i = 1; i < depth; ++i) {
    objects.push_back(ArrayBytes({static_cast<std::uint16_t>(i), static_cast<std::uint16_t>(i)}));
  }
  objects.push_back("Qa");
  return BinaryListBytes(objects);
}

TEST(PropertyListGuardTest, OrdinaryTextsAreSafe) {
  for (const char* text : {"{ a = b; }", "<?xml version=\"1.0\"?><plist><dict/></plist>", "(1, 2)",
                           " \t\r\n{}", "\t{}", "\"a\" = \"b\";"}) {
    EXPECT_TRUE(IsSafePropertyList(text)) << text;
  }
}

TEST(PropertyListGuardTest, ControlBytesInFrontAreNoText) {
  EXPECT_FALSE(IsSafePropertyList(""));
  for (char first = 0; first < '\t'; ++first) {
    EXPECT_FALSE(IsSafePropertyList(std::string(1, first) + "{}"));
  }
}

TEST(PropertyListGuardTest, MarkupThatEndsInsideATagIsNotSafe) {
  for (const char* text : {"<", " <", "<?xml", "<plist><dict>a", "<plist></", "<plist><\n"}) {
    EXPECT_FALSE(IsSafePropertyList(text)) << text;
  }
  for (const char* text : {"<plist>", "<0102> \n", "{a<"}) {
    EXPECT_TRUE(IsSafePropertyList(text)) << text;
  }
}

TEST(PropertyListGuardTest, TextsWithTooManyContainersAreNotSafe) {
  for (const char* opener : {"(", "{", "{a=", "<dict>", "<array>", "\"(\"", "/*(*/"}) {
    SCOPED_TRACE(opener);
    EXPECT_TRUE(IsSafePropertyList(Times(kMostPropertyListNesting, opener)));
    EXPECT_FALSE(IsSafePropertyList(Times(kMostPropertyListNesting + 1, opener)));
  }
}

TEST(PropertyListGuardTest, OtherTagsAreNotCounted) {
  EXPECT_TRUE(
      IsSafePropertyList(Times(2 * kMostPropertyListNesting, "<key>a</key><date>b</date>")));
}

TEST(PropertyListGuardTest, TheLargestFileIsSafeAndALargerOneIsNot) {
  std::string text(kLargestPropertyList, ' ');
  EXPECT_TRUE(IsSafePropertyList(text));
  text.push_back(' ');
  EXPECT_FALSE(IsSafePropertyList(text));
}

TEST(PropertyListGuardTest, BinaryObjectsOfEveryKindAreSafe) {
  const std::string objects[] = {
      "\0"s,
      "\x08"s,
      "\x09"s,
      "\x10\x01"s,
      "\x11\0\x01"s,
      "\x12\0\0\0\x01"s,
      "\x13\0\0\0\0\0\0\0\x01"s,
      "\x22\0\0\0\0"s,
      "\x33\0\0\0\0\0\0\0\0"s,
      "\x42"
      "ab"s,
      "\x51"
      "a"s,
      "\x5F\x10\x01"
      "a"s,
      "\x61\0a"s,
      "\x80\x01"s,
      "\xA0"s,
      "\xA1\0\x01"s,
      "\xD1\0\x01\0\x01"s,
      "\xC1\0\x01"s,
  };
  for (const std::string& object : objects) {
    EXPECT_TRUE(IsSafePropertyList(BinaryListBytes({object, "Qa"})))
        << testing::PrintToString(object);
  }
}

TEST(PropertyListGuardTest, BinaryObjectsBeyondTheFileAreNotSafe) {
  const std::string objects[] = {
      "\x5F\x12\x7F\xFF\xFF\xFF"s,
      "\x5F\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s,
      "\x5F\x14"s,
      "\x5F\x10"s,
      "\x5F"s,
      "\x5FQ"s,
      "\x52"
      "a"s,
      "\x42"
      "a"s,
      "\x61"
      "a"s,
      "\x13\0"s,
      "\x23\0"s,
      "\x33\0"s,
      "\x15\0"s,
      "\x81\0"s,
      "\xA1"s,
      "\xA1\0"s,
      "\xD1\0\0"s,
      "\xAF\x13\x80\0\0\0\0\0\0\x01"s,
      "\xDF\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s,
      "\x70"s,
      "\xB0"s,
      "\xE0"s,
      "\xF0"s,
      "\x90"s,
  };
  for (const std::string& object : objects) {
    EXPECT_FALSE(IsSafePropertyList(BinaryListBytes({object}))) << testing::PrintToString(object);
  }
}

TEST(PropertyListGuardTest, ALongCountInTheTableOfOffsetsIsNotSafe) {
  // The root is the byte before the table, and the table looks like the count that it announces.
  const std::string header = "bplist00" + std::string(8, '\x09');
  const std::string number(7, '\0');
  const std::string trailer =
      std::string(6, '\0') + "\x01\x01" + number + "\x01"s + number + "\0"s + number + "\x11"s;
  EXPECT_FALSE(IsSafePropertyList(header + "\x4F\x10" + trailer));
  // The same list with a root that announces none.
  EXPECT_TRUE(IsSafePropertyList(header + "\x09\x10" + trailer));
}

TEST(PropertyListGuardTest, ReferencesToNoObjectAreNotSafe) {
  EXPECT_TRUE(IsSafePropertyList(BinaryListBytes({ArrayBytes({1}), "Qa"})));
  EXPECT_FALSE(IsSafePropertyList(BinaryListBytes({ArrayBytes({2}), "Qa"})));
  EXPECT_FALSE(IsSafePropertyList(BinaryListBytes({std::string("\xD1\0\x01\0\x02", 5), "Qa"})));
  EXPECT_FALSE(IsSafePropertyList(BinaryListBytes({})));
}

TEST(PropertyListGuardTest, EveryTruncationOfABinaryListIsNotSafe) {
  const std::string list = BinaryListBytes({ArrayBytes({1, 2}), "Qa", "\x10\x07"});
  ASSERT_TRUE(IsSafePropertyList(list));
  for (std::size_t length = 0; length < list.size(); ++length) {
    // A short beginning of the magic word is a text like any other.
    if (length > 0 && length < 6) continue;
    EXPECT_FALSE(IsSafePropertyList(std::string_view(list).substr(0, length))) << length;
  }
}

TEST(PropertyListGuardTest, NoByteInABinaryListLeadsOutsideOfIt) {
  const std::string list = BinaryListBytes({ArrayBytes({1, 2}), "\xD1\0\x02\0\x02"s, "Qa"});
  int safe = 0;
  for (std::size_t at = 8; at < list.size(); ++at) {
    for (int value = 0; value < 256; ++value) {
      // A heap block of the exact size lets a sanitizer see every byte read past it.
      std::vector<char> bytes(list.begin(), list.end());
      bytes[at] = static_cast<char>(value);
      if (IsSafePropertyList({bytes.data(), bytes.size()})) ++safe;
    }
  }
  EXPECT_GT(safe, 0);
}

TEST(PropertyListGuardTest, BinaryNestingIsLimited) {
  EXPECT_TRUE(IsSafePropertyList(Nested(kMostPropertyListNesting)));
  EXPECT_FALSE(IsSafePropertyList(Nested(kMostPropertyListNesting + 1)));
}

TEST(PropertyListGuardTest, CyclesAreNotSafe) {
  EXPECT_FALSE(IsSafePropertyList(BinaryListBytes({ArrayBytes({0})})));
  EXPECT_FALSE(IsSafePropertyList(BinaryListBytes({ArrayBytes({1, 0}), ArrayBytes({0, 1})})));
}

TEST(PropertyListGuardTest, SharedObjectsCountEachTime) {
  EXPECT_TRUE(IsSafePropertyList(Doubling(18)));
  EXPECT_FALSE(IsSafePropertyList(Doubling(24)));
  EXPECT_FALSE(IsSafePropertyList(Doubling(1000)));
}

}  // namespace
