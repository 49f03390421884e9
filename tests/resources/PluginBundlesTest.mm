#import <Foundation/Foundation.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const char* const kBundles[] = {"Ostrel32.plugin", "Ostrel64.plugin"};

fs::path ConfiguredBundle(const std::string& name) { return fs::path(PLUGIN_FOLDER) / name; }

fs::path StandIn(const std::string& name) {
  return fs::path(RESOURCES_FOLDER) / "plugins" / name / "Contents";
}

/// The string under `key` in the bundle's Info.plist, or empty.
std::string InfoValue(const fs::path& bundle, NSString* key) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  const std::string path = bundle / "Contents/Info.plist";
  NSDictionary* info =
      [NSDictionary dictionaryWithContentsOfFile:[NSString stringWithUTF8String:path.c_str()]];
  id value = [info objectForKey:key];
  std::string text;
  if ([value isKindOfClass:[NSString class]]) {
    text = [value UTF8String];
  }
  [pool release];
  return text;
}

/// Every entry below `folder`, relative to it, sorted; links are not followed.
std::vector<std::string> EntriesBelow(const fs::path& folder) {
  std::vector<std::string> entries;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    entries.push_back(entry.path().lexically_relative(folder));
  }
  std::sort(entries.begin(), entries.end());
  return entries;
}

TEST(PluginBundlesTest, TheBundlesToInstallNameAnExecutableThatIsThere) {
  for (const char* name : kBundles) {
    SCOPED_TRACE(name);
    const fs::path bundle = ConfiguredBundle(name);
    const std::string executable = InfoValue(bundle, @"CFBundleExecutable");
    ASSERT_FALSE(executable.empty());
    EXPECT_EQ(access((bundle / "Contents/MacOS" / executable).c_str(), X_OK), 0);
  }
}

TEST(PluginBundlesTest, TheBundlesToInstallCarryTheVersionOfTheWelcomePage) {
  for (const char* name : kBundles) {
    SCOPED_TRACE(name);
    EXPECT_EQ(InfoValue(ConfiguredBundle(name), @"CFBundleVersion").rfind(PLUGIN_VERSION, 0), 0U);
  }
}

TEST(PluginBundlesTest, TheStandInsDifferOnlyInTheirContents) {
  EXPECT_EQ(EntriesBelow(StandIn(kBundles[0])), EntriesBelow(StandIn(kBundles[1])));
  const fs::path bundles = fs::path(RESOURCES_FOLDER) / "plugins";
  EXPECT_EQ(InfoValue(bundles / kBundles[0], @"CFBundleName"), "Ostrel 3D (32-bit)");
  EXPECT_EQ(InfoValue(bundles / kBundles[1], @"CFBundleName"), "Ostrel 3D (64-bit)");
}

// A copy of a bundle is only worth checking if the bundle has what copies lose.
TEST(PluginBundlesTest, TheStandInsHoldWhatACarelessCopyLoses) {
  for (const char* name : kBundles) {
    SCOPED_TRACE(name);
    const fs::path resources = StandIn(name) / "Resources";
    const fs::path link = resources / "Default.ostrelpreset";
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(fs::is_regular_file(link));
    EXPECT_TRUE(fs::is_symlink(resources / "Materials"));
    EXPECT_TRUE(fs::is_directory(resources / "Materials"));
    EXPECT_TRUE(fs::is_empty(resources / "Presets/Favourites.list"));
    EXPECT_TRUE(fs::exists(resources / "Presets/Soft Light – größer.ostrelpreset"));
    EXPECT_TRUE(fs::exists(resources / "Matériaux/Métal brossé/Acier.ostrelmaterial"));
    EXPECT_TRUE(fs::exists(StandIn(name) / "PkgInfo"));
    EXPECT_EQ(fs::status(StandIn(name) / "PkgInfo").permissions() & fs::perms::owner_exec,
              fs::perms::none);
  }
}

}  // namespace
