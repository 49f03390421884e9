#import <Foundation/Foundation.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <utility>
#include <vector>

#include "installer/Cocoa/PlatformHostSources.h"
#include "installer/HostDetection.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

constexpr NSPropertyListFormat kForms[] = {
    NSPropertyListXMLFormat_v1_0, NSPropertyListBinaryFormat_v1_0, NSPropertyListGNUstepFormat};

/// The platform's own reading of files, on the files of one folder.
class FileSources : public PlatformHostSources {
 public:
  explicit FileSources(const TemporaryFolder& files) : folder(files) {}
  std::optional<std::string> MarkerDocument() override { return folder.Path("AEFile.aep"); }
  std::optional<std::vector<std::string>> ApplicationsForDocument(const std::string&) override {
    return std::vector<std::string>{folder.Path("Tested/AE.app"), folder.Path("Good/AE.app")};
  }
  std::string PreferenceFile() override { return folder.Path("preferences"); }

 private:
  const TemporaryFolder& folder;
};

std::string Bytes(id root, NSPropertyListFormat form) {
  NSData* data = [NSPropertyListSerialization dataWithPropertyList:root
                                                            format:form
                                                           options:0
                                                             error:nullptr];
  EXPECT_NE(data, nil);
  return {static_cast<const char*>([data bytes]), [data length]};
}

NSDictionary* Info(id signature, id version) {
  return [NSDictionary dictionaryWithObjectsAndKeys:signature, @"CFBundleSignature", version,
                                                    @"CFBundleVersion", nil];
}

NSDictionary* Preference(NSString* key, id value) {
  return [NSDictionary dictionaryWithObject:value forKey:key];
}

NSDictionary* Folder(id path) { return Preference(@"PluginInstallPath", path); }

/// The entry 16.0 with a path that needs no quoting.
std::string XmlPreference(const std::string& path) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist><dict><key>16.0</key><dict>"
         "<key>PluginInstallPath</key><string>" +
         path + "</string></dict></dict></plist>";
}

/// What is no string, though a string belongs there.
NSArray* OtherValues() {
  return [NSArray arrayWithObjects:[NSNumber numberWithInt:12], [NSNumber numberWithDouble:12.5],
                                   [NSNumber numberWithBool:YES], [NSArray arrayWithObject:@"12.0"],
                                   [NSDate dateWithTimeIntervalSince1970:0],
                                   [NSData dataWithBytes:"12.0" length:4], Folder(@"12.0"), nil];
}

/// A host whose files are bad, beside one whose files are good.
class HostDetectionBadInputTest : public testing::Test {
 protected:
  HostDetectionBadInputTest() {
    folder.AddFolder("Tested/AE.app/Contents");
    folder.AddFolder("Good/AE.app/Contents");
    folder.AddFile("Good/AE.app/Contents/Info.plist",
                   Bytes(Info(@"FXTC", @"11.0"), NSPropertyListXMLFormat_v1_0));
    SetInfo(Bytes(Info(@"XXXX", @"9.0"), NSPropertyListXMLFormat_v1_0));
    SetPreferences(kForms[0], Preference(@"17.0", Folder(@"/P17")));
  }

  void SetInfo(const std::string& content) {
    folder.AddFile("Tested/AE.app/Contents/Info.plist", content);
  }
  void SetPreferences(const std::string& content) { folder.AddFile("preferences", content); }
  void SetPreferences(NSPropertyListFormat form, NSDictionary* root) {
    SetPreferences(Bytes(root, form));
  }

  using Paths = decltype(InstallerState::hostPath);

  Paths Detect() {
    FileSources sources(folder);
    InstallerState state;
    DetectHosts(sources, state);
    return state.hostPath;
  }

  /// Detects with the tested host at its version 12.0 or without it, and the good one always.
  void ExpectTested(bool isFound) {
    const Paths paths = Detect();
    EXPECT_EQ(paths[5], isFound ? folder.Path("Tested/Plug-ins") : "");
    EXPECT_EQ(paths[4], folder.Path("Good/Plug-ins"));
    EXPECT_EQ(paths[12], "/P17");
  }

  /// The same for the entry 16.0 of the preference file.
  void ExpectPreference(const std::string& path) {
    const Paths paths = Detect();
    EXPECT_EQ(paths[11], path);
    EXPECT_EQ(paths[4], folder.Path("Good/Plug-ins"));
  }

  TemporaryFolder folder;
  NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];

 public:
  ~HostDetectionBadInputTest() override { [pool drain]; }
};

/// Files of which nothing can be learnt, in any form.
std::vector<std::string> NoDictionaries() {
  std::vector<std::string> contents = {"",
                                       "no property list",
                                       std::string(1, '\0'),
                                       "bplist00",
                                       "<?xml version=\"1.0\"?><plist>",
                                       std::string(20'000'000, 'x'),
                                       std::string(1'000'000, '('),
                                       "\xFF\xFE{\0a\0}\0"};
  for (const NSPropertyListFormat form : kForms) {
    contents.push_back(Bytes([NSArray arrayWithObject:@"FXTC"], form));
    contents.push_back(Bytes(@"FXTC", form));
  }
  std::string nested = "<plist><dict>";
  for (int i = 0; i < 100'000; ++i) nested += "<key>a</key><dict>";
  contents.push_back(nested);
  return contents;
}

TEST_F(HostDetectionBadInputTest, AnInfoThatIsNoDictionaryContributesNothing) {
  for (const std::string& content : NoDictionaries()) {
    SCOPED_TRACE(content.substr(0, 40));
    SetInfo(content);
    ExpectTested(false);
  }
}

TEST_F(HostDetectionBadInputTest, PreferencesThatAreNoDictionaryLeaveTheApplications) {
  for (const std::string& content : NoDictionaries()) {
    SCOPED_TRACE(content.substr(0, 40));
    SetPreferences(content);
    ExpectPreference("");
  }
}

TEST_F(HostDetectionBadInputTest, AVersionThatIsNoStringContributesNothing) {
  for (const NSPropertyListFormat form : kForms) {
    SetInfo(Bytes(Info(@"FXTC", @"12.0"), form));
    ExpectTested(true);
    for (id value in OtherValues()) {
      SCOPED_TRACE([[value description] UTF8String]);
      SetInfo(Bytes(Info(@"FXTC", value), form));
      ExpectTested(false);
    }
  }
}

TEST_F(HostDetectionBadInputTest, ASignatureThatIsNoStringIsAnothers) {
  for (const NSPropertyListFormat form : kForms) {
    for (id value in OtherValues()) {
      SCOPED_TRACE([[value description] UTF8String]);
      SetInfo(Bytes(Info(value, @"12.0"), form));
      ExpectTested(false);
    }
  }
}

TEST_F(HostDetectionBadInputTest, APreferenceThatIsNoStringOrNoDictionaryIsPassedOver) {
  for (const NSPropertyListFormat form : kForms) {
    SetPreferences(form, Preference(@"16.0", Folder(@"/P16")));
    ExpectPreference("/P16");
    for (id value in OtherValues()) {
      SCOPED_TRACE([[value description] UTF8String]);
      SetPreferences(form, Preference(@"16.0", Folder(value)));
      ExpectPreference("");
      // One of the values is a dictionary with a folder in it.
      if ([value isKindOfClass:[NSDictionary class]]) continue;
      SetPreferences(form, Preference(@"16.0", value));
      ExpectPreference("");
    }
  }
}

TEST_F(HostDetectionBadInputTest, AnInfoThatEndsAtAnyByteIsReadWhollyOrNotAtAll) {
  for (const NSPropertyListFormat form : kForms) {
    const std::string whole = Bytes(Info(@"FXTC", @"12.0"), form);
    for (std::size_t length = 0; length < whole.size(); ++length) {
      SetInfo(whole.substr(0, length));
      const Paths paths = Detect();
      const std::string& path = paths[5];
      EXPECT_TRUE(path.empty() || path == folder.Path("Tested/Plug-ins")) << length;
      EXPECT_EQ(paths[4], folder.Path("Good/Plug-ins")) << length;
    }
  }
}

TEST_F(HostDetectionBadInputTest, PreferencesThatEndAtAnyByteAreReadWhollyOrNotAtAll) {
  for (const NSPropertyListFormat form : kForms) {
    const std::string whole = Bytes(Preference(@"16.0", Folder(@"/P 16")), form);
    for (std::size_t length = 0; length < whole.size(); ++length) {
      SetPreferences(whole.substr(0, length));
      const Paths paths = Detect();
      EXPECT_TRUE(paths[11].empty() || paths[11] == "/P 16") << length;
      EXPECT_EQ(paths[4], folder.Path("Good/Plug-ins")) << length;
    }
  }
}

TEST_F(HostDetectionBadInputTest, PathsAreTakenAsTheyStand) {
  for (const std::string& path :
       {std::string("/a  b/'c' \"d\""), std::string("/line\nbreak"), std::string("-rf"),
        std::string("relative/path/"), std::string("/\U0001F600/\u00E9/e\u0301"),
        "/" + std::string(1000, 'n'), std::string("/a//b/../c/./"),
        std::string("/%s %n $HOME `id`"), std::string(" "), std::string("/missing"),
        std::string("/dev/null")}) {
    // The platform's own writing of XML damages characters beyond the first 65,536.
    SetPreferences(XmlPreference(path));
    ExpectPreference(path);
    NSString* text = [NSString stringWithUTF8String:path.c_str()];
    for (const NSPropertyListFormat form :
         {NSPropertyListBinaryFormat_v1_0, NSPropertyListGNUstepFormat}) {
      SetPreferences(form, Preference(@"16.0", Folder(text)));
      ExpectPreference(path);
    }
  }
}

TEST_F(HostDetectionBadInputTest, APathThatIsNoUtf8IsPassedOverOrReadAsText) {
  for (const char* value : {"/\xFF", "/\xC3", "/\xED\xA0\x80", "/a\xC0\x80"}) {
    SetPreferences(XmlPreference(value));
    const Paths paths = Detect();
    EXPECT_EQ(paths[4], folder.Path("Good/Plug-ins"));
    // Whatever has been made of it is text again.
    EXPECT_NE([NSString stringWithUTF8String:paths[11].c_str()], nil);
  }
}

TEST_F(HostDetectionBadInputTest, AnInfoBehindALinkThatLeadsNowhereContributesNothing) {
  const std::string info = folder.Path("Tested/AE.app/Contents/Info.plist");
  for (const char* target : {"missing", "Info.plist", "/dev/zero", "."}) {
    ASSERT_EQ(unlink(info.c_str()), 0);
    folder.AddLink("Tested/AE.app/Contents/Info.plist", target);
    ExpectTested(false);
  }
}

TEST_F(HostDetectionBadInputTest, FilesThatMayNotBeReadContributeNothing) {
  SetInfo(Bytes(Info(@"FXTC", @"12.0"), kForms[0]));
  SetPreferences(kForms[0], Preference(@"16.0", Folder(@"/P16")));
  ASSERT_EQ(chmod(folder.path.c_str(), 0755), 0);
  ASSERT_EQ(chmod(folder.Path("Tested/AE.app/Contents/Info.plist").c_str(), 0), 0);
  ASSERT_EQ(chmod(folder.Path("preferences").c_str(), 0), 0);
  EXPECT_TRUE(AskAsOrdinaryUser([this] {
    const Paths paths = Detect();
    return paths[5].empty() && paths[11].empty() && paths[4] == folder.Path("Good/Plug-ins");
  }));
}

}  // namespace
