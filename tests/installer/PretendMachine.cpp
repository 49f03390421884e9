#include "tests/installer/PretendMachine.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdio>
#include <filesystem>

namespace {

/// Where the tests' build puts the probe.
constexpr const char* kProbe = PLATFORM_PROBE;

}  // namespace

PretendMachine::PretendMachine() {
  const std::string users = folder.Path("user/");
  const std::string machine = folder.Path("machine/");
  const std::string configuration = folder.AddFile(
      "GNUstep.conf",
      "GNUSTEP_LOCAL_APPS=" + machine + "Applications\n" + "GNUSTEP_LOCAL_ADMIN_APPS=" + machine +
          "Applications\n" + "GNUSTEP_LOCAL_LIBRARY=" + machine + "Library\n" +
          "GNUSTEP_LOCAL_USERS_DIR=" + machine + "Users\n" + "GNUSTEP_USER_DIR_APPS=" + users +
          "Applications\n" + "GNUSTEP_USER_DIR_ADMIN_APPS=" + users + "Applications\n" +
          "GNUSTEP_USER_DIR_LIBRARY=" + users + "Library\n" + "GNUSTEP_USER_DEFAULTS_DIR=" + users +
          "Defaults\n");
  // A configuration that others may write is not taken.
  EXPECT_EQ(chmod(configuration.c_str(), 0644), 0);
}

std::string PretendMachine::AddHost(const std::string& name, const std::string& version,
                                    const std::string& extension) {
  const std::string bundle = "machine/Applications/" + name + "/" + name + ".app";
  std::filesystem::create_directories(folder.Path(bundle + "/Contents"));
  std::filesystem::create_directories(folder.Path(bundle + "/Resources"));
  folder.AddFile(bundle + "/Contents/Info.plist",
                 "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                 "<key>CFBundleSignature</key><string>FXTC</string>"
                 "<key>CFBundleVersion</key><string>" +
                     version + "</string></dict></plist>\n");
  folder.AddFile(bundle + "/Resources/Info-gnustep.plist",
                 "{ NSTypes = ({ NSUnixExtensions = (" + extension + "); }); }\n");
  return folder.Path(bundle);
}

void PretendMachine::AddPreferences(const std::string& content) {
  std::filesystem::create_directories(folder.Path("machine/Library/Preferences"));
  folder.AddFile("machine/Library/Preferences/com.Adobe.After Effects.paths.plist", content);
}

void PretendMachine::AddAssetsPreference(const std::string& content) {
  const std::string maker = "machine/Library/ApplicationSupport/Halvorix";
  std::filesystem::create_directories(folder.Path(maker));
  folder.AddFile(maker + "/ostrel_assets_path", content);
}

void PretendMachine::RegisterApplications() { Run("make_services"); }

std::vector<std::string> PretendMachine::Probe(const std::string& document) {
  return Run("'" + std::string(kProbe) + "' '" + document + "'");
}

std::vector<std::string> PretendMachine::Run(const std::string& command) const {
  const std::string whole = "GNUSTEP_CONFIG_FILE='" + folder.Path("GNUstep.conf") + "' " + command;
  FILE* output = popen(whole.c_str(), "r");
  std::vector<std::string> lines;
  char* line = nullptr;
  std::size_t capacity = 0;
  for (ssize_t length = 0; (length = getline(&line, &capacity, output)) > 0;) {
    lines.emplace_back(line, static_cast<std::size_t>(length - 1));
  }
  std::free(line);
  EXPECT_EQ(pclose(output), 0) << whole;
  return lines;
}
