#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "installer/HostDetection.h"
#include "tests/installer/FakeHostSources.h"

namespace {

using testing::ElementsAre;

using Found = std::map<std::size_t, std::string>;

class HostDetectionTest : public testing::Test {
 protected:
  /// Detects anew; the slots that have a path, with it.
  Found Detect() {
    DetectHosts(sources, state);
    Found found;
    for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
      if (!state.hostPath[slot].empty()) found[slot] = state.hostPath[slot];
    }
    return found;
  }

  FakeHostSources sources;
  InstallerState state;
};

constexpr int kOther = static_cast<int>(kOtherVersionSlot);

struct VersionCase {
  const char* version;
  int slot;  // -1: not a known version
};

constexpr VersionCase kVersionCases[] = {
    {"10.0", 2},   {"10.0.4", 2}, {"10.01", 2},  {"10.5", 3},   {"10.5.1", 3}, {"11", 4},
    {"11.0.2", 4}, {"110", 4},    {"12", 5},     {"12.2.1", 5}, {"13", 6},     {"13.0.2", 6},
    {"13.5", 6},   {"13.5.1", 6}, {"13.8", 6},   {"13.8.0", 6}, {"13.8.1", 6}, {"14.0", 9},
    {"14.0.1", 9}, {"14", -1},    {"14.1", -1},  {"14.2", -1},  {"15.0", -1},  {"16.0", -1},
    {"17.0", -1},  {"18.0", -1},  {"9.0", -1},   {"10", -1},    {"10.1", -1},  {"10.4", -1},
    {"1", -1},     {"", -1},      {" 12.0", -1}, {"v12.0", -1}, {"8.0", -1},   {"CS6", -1},
};

TEST_F(HostDetectionTest, TheFirstMatchingVersionPrefixChoosesTheSlot) {
  for (const VersionCase& c : kVersionCases) {
    SCOPED_TRACE(c.version);
    FakeHostSources one;
    one.AddHost("/Applications/AE/AE.app", c.version);
    InstallerState fresh;
    DetectHosts(one, fresh);
    for (int slot = 0; slot < static_cast<int>(kHostSlotCount); ++slot) {
      EXPECT_EQ(fresh.hostPath[static_cast<std::size_t>(slot)],
                slot == c.slot ? "/Applications/AE/Plug-ins" : "");
    }
    EXPECT_EQ(fresh.otherVersionName, "");
  }
}

constexpr VersionCase kPreferenceCases[] = {
    {"13.5", 7},      {"13.8", 8},        {"14.0", 9},       {"15.0", 10},       {"16.0", 11},
    {"17.0", 12},     {"18.0", kOther},   {"12.0", kOther},  {"13.5.1", kOther}, {"17.0 ", kOther},
    {"13", kOther},   {"15", kOther},     {"017.0", kOther}, {"", kOther},       {"CC", kOther},
    {"10.0", kOther}, {"14.0.0", kOther},
};

TEST_F(HostDetectionTest, PreferenceKeysAreComparedWholeAndOthersShareOneSlot) {
  for (const VersionCase& c : kPreferenceCases) {
    SCOPED_TRACE(c.version);
    FakeHostSources one;
    one.AddPreference(c.version, "/P/Plug-ins");
    InstallerState fresh;
    DetectHosts(one, fresh);
    for (int slot = 0; slot < static_cast<int>(kHostSlotCount); ++slot) {
      EXPECT_EQ(fresh.hostPath[static_cast<std::size_t>(slot)],
                slot == c.slot ? "/P/Plug-ins" : "");
    }
    EXPECT_EQ(fresh.otherVersionName, c.slot == kOther ? c.version : "");
  }
}

TEST_F(HostDetectionTest, AsksInOrder) {
  sources.AddHost("/A/B.app", "12.0");
  sources.AddHost("/A/C.app/", "11.0");
  Detect();
  EXPECT_THAT(sources.asked,
              ElementsAre("marker", "applications for /Installer/AEFile.aep",
                          "read /A/B.app/Contents/Info.plist", "read /A/C.app/Contents/Info.plist",
                          "read /Library/Preferences/host.plist"));
}

TEST_F(HostDetectionTest, WithoutMarkerDocumentNothingIsAskedAtAll) {
  sources.marker.reset();
  sources.AddHost("/A/B.app", "12.0");
  sources.AddPreference("17.0", "/P");
  EXPECT_EQ(Detect(), Found());
  EXPECT_THAT(sources.asked, ElementsAre("marker"));
}

TEST_F(HostDetectionTest, WithoutAListOfApplicationsThePreferenceFileIsNotRead) {
  sources.applications.reset();
  sources.AddPreference("17.0", "/P");
  EXPECT_EQ(Detect(), Found());
  EXPECT_THAT(sources.asked, ElementsAre("marker", "applications for /Installer/AEFile.aep"));
}

TEST_F(HostDetectionTest, WithAnEmptyListOfApplicationsThePreferenceFileIsRead) {
  sources.AddPreference("17.0", "/P");
  EXPECT_EQ(Detect(), (Found{{12, "/P"}}));
}

TEST_F(HostDetectionTest, TheFolderIsBesideTheApplication) {
  sources.AddHost("/B.app", "10.0");
  sources.AddHost("/Programme/ä ö/C.app/", "10.5");
  sources.AddHost("D.app", "11");
  sources.AddHost("E/", "12");
  EXPECT_EQ(
      Detect(),
      (Found{{2, "/Plug-ins"}, {3, "/Programme/ä ö/Plug-ins"}, {4, "Plug-ins"}, {5, "Plug-ins"}}));
}

TEST_F(HostDetectionTest, TheLaterOfTwoApplicationsOfOneSlotWins) {
  sources.AddHost("/Old/AE.app", "12.2");
  sources.AddHost("/New/AE.app", "12.0");
  EXPECT_EQ(Detect(), (Found{{5, "/New/Plug-ins"}}));
}

TEST_F(HostDetectionTest, OnlyTheHostsSignatureCounts) {
  for (const char* signature : {"", "fxtc", "FXTc", "FXTC ", "FXT", "FXTCX", "????"}) {
    SCOPED_TRACE(signature);
    sources.AddApplication("/A/B.app", {{"CFBundleSignature", PropertyValue::String(signature)},
                                        {"CFBundleVersion", PropertyValue::String("12.0")}});
    EXPECT_EQ(Detect(), Found());
  }
}

TEST_F(HostDetectionTest, AnAbsentSignatureCountsAsTheHosts) {
  sources.AddApplication("/A/B.app", {{"CFBundleVersion", PropertyValue::String("12.0")}});
  sources.AddApplication("/C/D.app", {{"CFBundleVersion", PropertyValue::String("99")}});
  EXPECT_EQ(Detect(), (Found{{5, "/A/Plug-ins"}}));
}

TEST_F(HostDetectionTest, ASignatureOfAnotherTypeIsAnothers) {
  sources.AddApplication("/A/B.app", {{"CFBundleSignature", PropertyValue()},
                                      {"CFBundleVersion", PropertyValue::String("12.0")}});
  sources.AddApplication("/C/D.app", {{"CFBundleSignature", PropertyValue::Dictionary({})},
                                      {"CFBundleVersion", PropertyValue::String("11.0")}});
  EXPECT_EQ(Detect(), Found());
}

TEST_F(HostDetectionTest, AVersionThatIsAbsentOrOfAnotherTypeContributesNothing) {
  sources.AddApplication("/A/B.app", {{"CFBundleSignature", PropertyValue::String("FXTC")}});
  sources.AddApplication("/C/D.app", {{"CFBundleVersion", PropertyValue()}});
  sources.applications->push_back("/Unreadable/E.app");
  EXPECT_EQ(Detect(), Found());
}

TEST_F(HostDetectionTest, OneHostInBothSourcesFillsTwoSlots) {
  sources.AddHost("/AE/AE.app", "13.5.2");
  sources.AddPreference("13.5", "/Elsewhere/Plug-ins");
  EXPECT_EQ(Detect(), (Found{{6, "/AE/Plug-ins"}, {7, "/Elsewhere/Plug-ins"}}));
}

TEST_F(HostDetectionTest, ThePreferenceFileWinsOverTheApplication) {
  sources.AddHost("/AE/AE.app", "14.0.1");
  sources.AddPreference("14.0", "/Elsewhere/");
  sources.AddPreference("18.0", "relative//verbatim/");
  EXPECT_EQ(Detect(), (Found{{9, "/Elsewhere/"}, {kOtherVersionSlot, "relative//verbatim/"}}));
  EXPECT_EQ(state.otherVersionName, "18.0");
}

TEST_F(HostDetectionTest, TheLastUnknownPreferenceKeyWins) {
  sources.AddPreference("18.0", "/P18");
  sources.AddPreference("12.0", "/P12");
  sources.AddPreference("15.0", "/P15");
  EXPECT_EQ(Detect(), (Found{{10, "/P15"}, {kOtherVersionSlot, "/P12"}}));
  EXPECT_EQ(state.otherVersionName, "12.0");
}

TEST_F(HostDetectionTest, PreferenceKeysWithoutAFolderAreIgnored) {
  sources.AddPreference("13.5", PropertyValue());
  sources.AddPreference("13.8", PropertyValue::String("/P"));
  sources.AddPreference("14.0", PropertyValue::Dictionary({}));
  sources.AddPreference(
      "15.0", PropertyValue::Dictionary({{"pluginInstallPath", PropertyValue::String("/P")}}));
  sources.AddPreference("18.0",
                        PropertyValue::Dictionary({{"PluginInstallPath", PropertyValue()}}));
  EXPECT_EQ(Detect(), Found());
  EXPECT_EQ(state.otherVersionName, "");
}

TEST_F(HostDetectionTest, AnIgnoredPreferenceKeyLeavesTheApplicationsFolder) {
  sources.AddHost("/AE/AE.app", "14.0");
  sources.AddPreference("14.0", PropertyValue::Dictionary({}));
  EXPECT_EQ(Detect(), (Found{{9, "/AE/Plug-ins"}}));
}

TEST_F(HostDetectionTest, AnEmptyFolderInThePreferenceFileIsTakenAsItStands) {
  sources.AddHost("/AE/AE.app", "14.0");
  sources.AddPreference("14.0", "");
  sources.AddPreference("18.0", "");
  EXPECT_EQ(Detect(), Found());
  EXPECT_EQ(state.otherVersionName, "18.0");
}

TEST_F(HostDetectionTest, NothingButPathsAndTheNameIsWritten) {
  state.hostPath[0] = "/CS3";
  state.hostPath[1] = "/CS4";
  state.hostPath[kCustomSlot] = "/Custom";
  state.customBitness = 0;
  for (const VersionCase& c : kVersionCases) sources.AddHost("/A/B.app", c.version);
  for (const VersionCase& c : kPreferenceCases) sources.AddPreference(c.version, "/P");
  DetectHosts(sources, state);
  EXPECT_EQ(state.hostPath[0], "/CS3");
  EXPECT_EQ(state.hostPath[1], "/CS4");
  EXPECT_EQ(state.hostPath[kCustomSlot], "/Custom");
  EXPECT_THAT(state.hostSelected, testing::Each(0));
  EXPECT_EQ(state.customBitness, 0);
  EXPECT_EQ(state.installStep.load(), -1);
  EXPECT_FALSE(state.installDone.load());
}

}  // namespace
