#include <gtest/gtest.h>

#include <map>

#include "installer/DataPaths.h"
#include "tests/installer/EnvironmentVariable.h"

namespace {

class FakeFolders : public StandardFolders {
 public:
  std::string MachineApplicationSupport() const override { return "/Library/Application Support"; }
  std::string UserApplicationSupport() const override { return "/U/Library/Application Support"; }
  std::string UserDocuments() const override { return documents; }
  std::string SharedUserData() const override { return shared; }
  std::optional<PropertyValue> ReadDictionary(const std::string& path) const override {
    const auto file = files.find(path);
    if (file == files.end()) return std::nullopt;
    return file->second;
  }

  std::string documents = "/U/Documents";
  std::string shared = "/Users/Shared";
  std::map<std::string, PropertyValue> files;
};

constexpr const char* kPreferenceFile = "/Library/Application Support/Halvorix/ostrel_assets_path";

class DataPathsTest : public testing::Test {
 protected:
  void PreferAssets(PropertyValue value) {
    folders.files[kPreferenceFile] = PropertyValue::Dictionary({{"AssetsPath", std::move(value)}});
  }

  FakeFolders folders;
  EnvironmentVariable dataPath{"OSTREL_DATA_PATH", nullptr};
  EnvironmentVariable userPath{"OSTREL_USER_PATH", nullptr};
};

TEST_F(DataPathsTest, DataFolderByKind) {
  EXPECT_EQ(GetDataPath(folders, 0), "/Library/Application Support");
  EXPECT_EQ(GetDataPath(folders, 2), "/Library/Application Support");
  for (const std::int32_t kind : {1, 3, 7, -1, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(GetDataPath(folders, kind), "/U/Library/Application Support") << kind;
  }
}

TEST_F(DataPathsTest, TheVariableReplacesTheDataFolderOfKindZeroAlone) {
  for (const char* value : {"/elsewhere/", "not/there", ""}) {
    SCOPED_TRACE(value);
    dataPath.Set(value);
    EXPECT_EQ(GetDataPath(folders, 0), value);
    EXPECT_EQ(GetDataPath(folders, 2), "/Library/Application Support");
    EXPECT_EQ(GetDataPath(folders, 1), "/U/Library/Application Support");
  }
}

TEST_F(DataPathsTest, AssetsFolderByKind) {
  EXPECT_EQ(GetAssetsPath(folders, 0), "/U/Documents");
  EXPECT_EQ(GetAssetsPath(folders, 1), "/U/Documents");
  for (const std::int32_t kind : {2, 3, 5, -1, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(GetAssetsPath(folders, kind), "/Users/Shared/Documents") << kind;
  }
}

TEST_F(DataPathsTest, TheSharedDocumentsTakeTheNameOfTheUsersOwn) {
  folders.documents = "/U/Dokumente";
  EXPECT_EQ(GetAssetsPath(folders, 2), "/Users/Shared/Dokumente");
}

TEST_F(DataPathsTest, WithoutASharedFolderThereAreNoSharedDocuments) {
  folders.shared = "";
  EXPECT_EQ(GetAssetsPath(folders, 2), "");
}

TEST_F(DataPathsTest, WithoutADocumentsFolderTheSharedFolderItselfIsGiven) {
  folders.documents = "";
  EXPECT_EQ(GetAssetsPath(folders, 1), "");
  EXPECT_EQ(GetAssetsPath(folders, 2), "/Users/Shared");
}

TEST_F(DataPathsTest, ThePreferenceFileComesBeforeTheVariable) {
  userPath.Set("/variable");
  EXPECT_EQ(GetAssetsPath(folders, 0), "/variable");
  PreferAssets(PropertyValue::String("/preferred"));
  EXPECT_EQ(GetAssetsPath(folders, 0), "/preferred");
  EXPECT_EQ(GetAssetsPath(folders, 1), "/U/Documents");
  EXPECT_EQ(GetAssetsPath(folders, 2), "/Users/Shared/Documents");
}

TEST_F(DataPathsTest, AnAssetsPathNeedsTwoCharacters) {
  userPath.Set("/variable");
  for (const char* path : {"", "/", "ä", "\xE2\x82\xAC"}) {
    PreferAssets(PropertyValue::String(path));
    EXPECT_EQ(GetAssetsPath(folders, 0), "/variable") << path;
  }
  for (const char* path : {"/a", "ää", "//"}) {
    PreferAssets(PropertyValue::String(path));
    EXPECT_EQ(GetAssetsPath(folders, 0), path);
  }
}

TEST_F(DataPathsTest, AnAssetsPathThatIsNoStringIsIgnored) {
  PreferAssets(PropertyValue());
  EXPECT_EQ(GetAssetsPath(folders, 0), "/U/Documents");
  PreferAssets(PropertyValue::Dictionary({}));
  EXPECT_EQ(GetAssetsPath(folders, 0), "/U/Documents");
  folders.files[kPreferenceFile] = PropertyValue::Dictionary({});
  EXPECT_EQ(GetAssetsPath(folders, 0), "/U/Documents");
}

TEST_F(DataPathsTest, TheVariableIsTakenVerbatim) {
  for (const char* value : {"/", "", "a//b/"}) {
    userPath.Set(value);
    EXPECT_EQ(GetAssetsPath(folders, 0), value);
  }
}

TEST_F(DataPathsTest, TheDataPathVariableDoesNotMoveThePreferenceFile) {
  dataPath.Set("/elsewhere");
  PreferAssets(PropertyValue::String("/preferred"));
  EXPECT_EQ(GetAssetsPath(folders, 0), "/preferred");
}

}  // namespace
