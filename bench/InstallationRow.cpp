#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

#include "bench/Command.h"
#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"
#include "bench/TemporaryFolder.h"
#include "installer/GNUstep/AuthorizationByHelper.h"
#include "installer/InstallationRun.h"
#include "support/Files.h"

namespace {

constexpr int kPairs = 21;
constexpr std::size_t kHosts = 14;
constexpr int kFolders = 20;
constexpr int kFilesInEach = 100;

std::string HostFolder(const std::string& root, std::size_t slot) {
  return root + "/host " + std::to_string(slot);
}

/// A machine below one folder. The helper is the real one and does its work
/// there with the rights of whoever measures.
class BenchWorld : public InstallationWorld {
 public:
  explicit BenchWorld(const std::string& rootFolder) : root(rootFolder) {}

  std::unique_ptr<Authorization> MakeAuthorization() override {
    return std::make_unique<AuthorizationByHelper>(HelperLauncher({}, OSTREL_HELPER_PATH));
  }
  std::string ResourcePath(const std::string&, const std::string&) override {
    return root + "/Ostrel.plugin";
  }
  std::string DataPath(std::int32_t kind) override {
    return root + "/data " + std::to_string(kind);
  }
  bool PathExists(const std::string& path) override { return FileExists(path); }
  bool HasEnvironment(const std::string&) override { return false; }
  void WaitForChild(std::int32_t pid) override { waitpid(pid, nullptr, 0); }
  void RequestRedraw() override {}

 private:
  std::string root;
};

bool MakeBundle(const std::string& bundle) {
  if (MakeDir(bundle) != 0) return false;
  const std::string content(1000, 'x');
  for (int i = 0; i < kFolders; ++i) {
    const std::string folder = bundle + "/folder " + std::to_string(i);
    if (MakeDir(folder) != 0) return false;
    for (int j = 0; j < kFilesInEach; ++j) {
      if (!(std::ofstream(folder + "/file " + std::to_string(j)) << content)) return false;
    }
  }
  return true;
}

/// The same tools with the same arguments as the helper runs them, one after the other.
bool WriteScript(const std::string& root) {
  std::ofstream script(root + "/install.sh");
  const auto quoted = [](const std::string& path) { return " '" + path + "'"; };
  for (std::size_t slot = 0; slot < kHosts; ++slot) {
    const std::string folder = HostFolder(root, slot) + "/Halvorix";
    const std::string bundle = folder + "/Ostrel.plugin";
    script << "/bin/mkdir" << quoted(folder) << "\n/bin/rm -rf" << quoted(bundle)
           << "\n/bin/cp -a --no-preserve=ownership -T --" << quoted(root + "/Ostrel.plugin")
           << quoted(bundle) << "\n/bin/chmod -R 0755" << quoted(bundle) << "\n";
  }
  const std::string data = root + "/data 2/Halvorix";
  script << "/bin/mkdir" << quoted(data) << "\n/bin/chmod -R 0777" << quoted(data) << "\n";
  return static_cast<bool>(script.flush());
}

bool MakeMachine(const std::string& root) {
  if (!MakeBundle(root + "/Ostrel.plugin") || MakeDir(root + "/data 1") != 0 ||
      MakeDir(root + "/data 2") != 0 || !WriteScript(root)) {
    return false;
  }
  for (std::size_t slot = 0; slot < kHosts; ++slot) {
    if (MakeDir(HostFolder(root, slot)) != 0) return false;
  }
  return true;
}

/// Every run starts on hosts that have no plug-in yet.
bool Clean(const std::string& root) {
  std::vector<std::string> command = {"rm", "-rf", root + "/data 2/Halvorix"};
  for (std::size_t slot = 0; slot < kHosts; ++slot) {
    command.push_back(HostFolder(root, slot) + "/Halvorix");
  }
  return RunCommand(command);
}

bool IsInstalled(const std::string& root) {
  for (std::size_t slot = 0; slot < kHosts; ++slot) {
    const std::string copy = HostFolder(root, slot) + "/Halvorix/Ostrel.plugin";
    if (!RunCommand({"diff", "-rq", root + "/Ostrel.plugin", copy})) return false;
  }
  return FileExists(root + "/data 2/Halvorix");
}

bool Install(const std::string& root) {
  InstallerState state;
  for (std::size_t slot = 0; slot < kHosts; ++slot) {
    state.hostSelected[slot] = 1;
    state.hostPath[slot] = HostFolder(root, slot);
  }
  BenchWorld world(root);
  RunInstallation(state, world);
  return state.installDone && !state.installFailed;
}

}  // namespace

bool MeasureInstallation() {
  const TemporaryFolder folder(TemporaryFolder::MemoryParent());
  const std::string& root = folder.GetPath();
  if (root.empty() || !MakeMachine(root)) {
    std::fputs("The hosts could not be made.\n", stderr);
    return false;
  }
  bool isRight = true;
  const auto work = [&] {
    isRight &= Clean(root);
    return MillisecondsOf([&] { isRight &= Install(root); });
  };
  const auto reference = [&] {
    isRight &= Clean(root);
    return MillisecondsOf([&] { isRight &= RunCommand({"/bin/sh", root + "/install.sh"}); });
  };
  work();
  isRight &= IsInstalled(root);
  reference();
  isRight &= IsInstalled(root);
  const PairMedians medians = MeasurePairs(kPairs, work, reference);
  if (!isRight) {
    std::fputs("An installation did not come out as it should.\n", stderr);
    return false;
  }
  PrintRatio("run into 14 hosts, bundle of 2,000 files", "the same tools in a shell script",
             medians, 1.05);
  return true;
}
