#include "installer/Cocoa/PropertyListFile.h"

#import <Foundation/Foundation.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/installer/BinaryListBytes.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using namespace std::string_literals;

constexpr const char* kXmlHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">";

std::string Xml(const std::string& root) { return kXmlHead + root + "</plist>\n"; }

std::string Binary(NSDictionary* root) {
  @autoreleasepool {
    NSData* data = [NSPropertyListSerialization dataWithPropertyList:root
                                                              format:NSPropertyListBinaryFormat_v1_0
                                                             options:0
                                                               error:nullptr];
    return {static_cast<const char*>([data bytes]), [data length]};
  }
}

/// An Info.plist as the host has it, in the binary form.
std::string BinaryInfo() {
  @autoreleasepool {
    NSDictionary* folders = [NSDictionary dictionaryWithObject:@"/P ä" forKey:@"PluginInstallPath"];
    return Binary([NSDictionary dictionaryWithObjectsAndKeys:@"FXTC", @"CFBundleSignature", @"14.0",
                                                             @"CFBundleVersion",
                                                             [NSNumber numberWithInt:3], @"number",
                                                             folders, @"folders", nil]);
  }
}

const std::string kXmlInfo =
    Xml("<dict><key>CFBundleSignature</key><string>FXTC</string>"
        "<key>CFBundleVersion</key><string>14.0</string><key>number</key><integer>3</integer>"
        "<key>folders</key><dict><key>PluginInstallPath</key><string>/P ä</string></dict></dict>");

const std::string kTextInfo =
    "{ CFBundleSignature = FXTC; CFBundleVersion = \"14.0\"; number = (3);\n"
    "  /* a comment */ folders = { PluginInstallPath = \"/P ä\"; }; }";

class PropertyListFileTest : public testing::Test {
 protected:
  std::optional<PropertyValue> Read(const std::string& content) {
    return ReadPropertyListFile(folder.AddFile("list.plist", content));
  }

  TemporaryFolder folder;
};

void ExpectInfo(const std::optional<PropertyValue>& info) {
  ASSERT_TRUE(info.has_value());
  ASSERT_NE(info->FindString("CFBundleSignature"), nullptr);
  EXPECT_EQ(*info->FindString("CFBundleSignature"), "FXTC");
  ASSERT_NE(info->FindString("CFBundleVersion"), nullptr);
  EXPECT_EQ(*info->FindString("CFBundleVersion"), "14.0");
  ASSERT_NE(info->Find("number"), nullptr);
  EXPECT_EQ(info->FindString("number"), nullptr);
  const PropertyValue* folders = info->Find("folders");
  ASSERT_NE(folders, nullptr);
  ASSERT_NE(folders->FindString("PluginInstallPath"), nullptr);
  EXPECT_EQ(*folders->FindString("PluginInstallPath"), "/P ä");
  EXPECT_EQ(info->Entries().size(), 4U);
}

TEST_F(PropertyListFileTest, ReadsTheXmlForm) { ExpectInfo(Read(kXmlInfo)); }

TEST_F(PropertyListFileTest, ReadsTheBinaryForm) { ExpectInfo(Read(BinaryInfo())); }

TEST_F(PropertyListFileTest, ReadsTheOldTextForm) { ExpectInfo(Read(kTextInfo)); }

TEST_F(PropertyListFileTest, ReadsXmlBehindAByteOrderMark) {
  ExpectInfo(Read("\xEF\xBB\xBF" + kXmlInfo));
}

TEST_F(PropertyListFileTest, ReadsAPathWithAnyBytes) {
  ExpectInfo(ReadPropertyListFile(folder.AddFile("\xFF \xC3 ä.plist", kXmlInfo)));
}

TEST_F(PropertyListFileTest, AnEmptyDictionaryIsADictionary) {
  const auto list = Read(Xml("<dict/>"));
  ASSERT_TRUE(list.has_value());
  EXPECT_TRUE(list->IsDictionary());
  EXPECT_TRUE(list->Entries().empty());
}

TEST_F(PropertyListFileTest, OtherRootsAreNoDictionary) {
  for (const char* root :
       {"<array><dict/></array>", "<string>a</string>", "<integer>1</integer>", "<true/>",
        "<date>2019-01-01T00:00:00Z</date>", "<data>AAAA</data>", ""}) {
    EXPECT_FALSE(Read(Xml(root)).has_value()) << root;
  }
  for (const char* text : {"(a, b)", "text", "<0102>", "\"quoted\"", "", " ", "\n", "{", "}", "{a",
                           "{a=", "{a=b", "<", "<?xml", "{\"a\":\"b\"}"}) {
    EXPECT_FALSE(Read(text).has_value()) << text;
  }
  EXPECT_FALSE(Read(BinaryListBytes({"Qa"})).has_value());
  EXPECT_FALSE(Read(BinaryListBytes({"\x09"})).has_value());
}

TEST_F(PropertyListFileTest, ValuesOfOtherTypesComeWithoutContent) {
  const auto list = Read(Xml("<dict><key>a</key><real>14.0</real><key>b</key><true/>"
                             "<key>c</key><date>2019-01-01T00:00:00Z</date>"
                             "<key>d</key><array><string>x</string></array>"
                             "<key>e</key><data>AAAA</data></dict>"));
  ASSERT_TRUE(list.has_value());
  EXPECT_EQ(list->Entries().size(), 5U);
  for (const PropertyEntry& entry : list->Entries()) {
    EXPECT_EQ(entry.value.AsString(), nullptr) << entry.key;
    EXPECT_FALSE(entry.value.IsDictionary()) << entry.key;
  }
}

TEST_F(PropertyListFileTest, DictionariesBelowTheSecondLevelComeWithoutContent) {
  const auto list = Read("{ a = { b = { c = d; }; e = f; }; }");
  ASSERT_TRUE(list.has_value());
  const PropertyValue* second = list->Find("a");
  ASSERT_NE(second, nullptr);
  EXPECT_NE(second->FindString("e"), nullptr);
  ASSERT_NE(second->Find("b"), nullptr);
  EXPECT_FALSE(second->Find("b")->IsDictionary());
}

/// Reads every truncation of `content`; those shorter than `needed` are no dictionary.
void ExpectTruncationsToBeSurvived(const TemporaryFolder& folder, const std::string& content,
                                   std::size_t needed) {
  for (std::size_t length = 0; length < content.size(); ++length) {
    const auto list =
        ReadPropertyListFile(folder.AddFile("truncated.plist", content.substr(0, length)));
    if (length < needed) {
      EXPECT_FALSE(list.has_value()) << length;
    }
  }
}

TEST_F(PropertyListFileTest, TruncatedFilesAreNoDictionary) {
  ExpectTruncationsToBeSurvived(folder, kXmlInfo, kXmlInfo.find("</dict></plist>") + 7);
  const std::string binary = BinaryInfo();
  ExpectTruncationsToBeSurvived(folder, binary, binary.size());
  ExpectTruncationsToBeSurvived(folder, kTextInfo, kTextInfo.size());
}

TEST_F(PropertyListFileTest, ADamagedByteIsSurvived) {
  const std::string binary = BinaryInfo();
  struct Damage {
    std::string content;
    std::string values;
  };
  std::size_t dictionaries = 0;
  for (const Damage& damage : {Damage{binary, "\0\x12\x7F\xFF\xD1\xA1"s}, Damage{kXmlInfo, "\xFF<"},
                               Damage{kTextInfo, "\xFF(\""}}) {
    for (std::size_t at = 0; at < damage.content.size(); ++at) {
      for (const char value : damage.values) {
        std::string damaged = damage.content;
        damaged[at] = value;
        if (Read(damaged).has_value()) ++dictionaries;
      }
    }
  }
  // Damage inside a text leaves a dictionary; the rest need only be survived.
  EXPECT_GT(dictionaries, 0U);
}

TEST_F(PropertyListFileTest, TextThatIsNotUtf8IsSurvived) {
  for (const std::string& content :
       {Xml("<dict><key>a\xFF</key><string>\xC3</string></dict>"), "{ a = \"\xFF\xFE\"; }"s,
        BinaryListBytes({"\xD2\0\x01\0\x02\0\x03\0\x04"s, "Qa", "Qb", "\x61\xD8\0"s, "Q\xFF"})}) {
    const auto list = Read(content);
    if (list) {
      EXPECT_LE(list->Entries().size(), 2U);
    }
  }
}

TEST_F(PropertyListFileTest, DeepNestingIsRefused) {
  for (const char* opener : {"(", "{a=", "\x01"}) {
    std::string content;
    for (int i = 0; i < 1'000'000; ++i) content += opener;
    EXPECT_FALSE(Read(content).has_value());
  }
  std::string xml = "<dict><key>a</key>";
  for (int i = 0; i < 1'000'000; ++i) xml += "<array>";
  EXPECT_FALSE(Read(Xml(xml)).has_value());
}

TEST_F(PropertyListFileTest, NestingWithinTheLimitIsRead) {
  std::string text = "{a=";
  for (int i = 0; i < 9'000; ++i) text += '(';
  text.append(9'000, ')');
  EXPECT_TRUE(Read(text + ";}").has_value());

  std::vector<std::string> objects = {"\xD1\0\x01\0\x02"s, "Qa"};
  for (std::uint16_t i = 3; i < 9'000; ++i) objects.push_back(ArrayBytes({i}));
  objects.push_back(ArrayBytes({}));
  EXPECT_TRUE(Read(BinaryListBytes(objects)).has_value());
}

TEST_F(PropertyListFileTest, TwentyMegabytesAreReadInReasonableTime) {
  std::string content = "{";
  for (int i = 0; i < 5'000; ++i) {
    content += "\"" + std::to_string(i) + "\" = { PluginInstallPath = \"/" +
               std::string(4'000, 'p') + "\"; };\n";
  }
  content += "}";
  ASSERT_GT(content.size(), 20'000'000U);
  const auto start = std::chrono::steady_clock::now();
  const auto list = Read(content);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
  ASSERT_TRUE(list.has_value());
  EXPECT_EQ(list->Entries().size(), 5'000U);
}

TEST_F(PropertyListFileTest, TwentyMegabytesOfNothingAreRefused) {
  for (const char filler : {'\0', ' ', 'a', '\xFF', '<'}) {
    EXPECT_FALSE(Read(std::string(20'000'000, filler)).has_value()) << static_cast<int>(filler);
  }
}

TEST_F(PropertyListFileTest, WhatIsNoRegularFileIsRefusedAtOnce) {
  EXPECT_FALSE(ReadPropertyListFile(folder.Path("missing.plist")).has_value());
  EXPECT_FALSE(ReadPropertyListFile("").has_value());
  EXPECT_FALSE(ReadPropertyListFile(folder.AddFolder("folder.plist")).has_value());
  EXPECT_FALSE(ReadPropertyListFile("/dev/zero").has_value());
  const std::string pipe = folder.Path("pipe.plist");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_FALSE(ReadPropertyListFile(pipe).has_value());
  EXPECT_FALSE(ReadPropertyListFile(folder.AddLink("loop.plist", "loop.plist")).has_value());
}

TEST_F(PropertyListFileTest, AFileLargerThanTheMemoryIsRefusedUnread) {
  const std::string file = folder.AddFile("list.plist", kXmlInfo);
  constexpr std::uintmax_t kTerabyte = 1ULL << 40;
  std::filesystem::resize_file(file, 8 * kTerabyte);
  EXPECT_FALSE(ReadPropertyListFile(file).has_value());
}

TEST_F(PropertyListFileTest, AFileThatEndsBeforeItsSizeIsNoDictionary) {
  // The kernel's own files claim a whole page.
  EXPECT_FALSE(ReadPropertyListFile("/sys/devices/system/cpu/online").has_value());
}

TEST_F(PropertyListFileTest, ALinkToAFileIsFollowed) {
  const std::string file = folder.AddFile("list.plist", kXmlInfo);
  ExpectInfo(ReadPropertyListFile(folder.AddLink("link.plist", file)));
}

TEST_F(PropertyListFileTest, AnUnreadableFileIsNoDictionary) {
  const std::string file = folder.AddFile("list.plist", kXmlInfo);
  ASSERT_EQ(chmod(folder.path.c_str(), 0755), 0);
  EXPECT_TRUE(AskAsOrdinaryUser([&] { return ReadPropertyListFile(file).has_value(); }));
  ASSERT_EQ(chmod(file.c_str(), 0), 0);
  EXPECT_FALSE(AskAsOrdinaryUser([&] { return ReadPropertyListFile(file).has_value(); }));
}

}  // namespace
