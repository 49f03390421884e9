#include "installer/InstallationRun.h"

#include <cstdio>

#include "installer/PrivilegedTool.h"
#include "support/Paths.h"

namespace {

constexpr const char* kMakerFolder = "Halvorix";
constexpr std::int32_t kUserData = 1;
constexpr std::int32_t kMachineData = 2;

void EndRun(InstallerState& state, bool failed) {
  // The reader looks at `installFailed` only after it has seen `installDone`.
  if (failed) state.installFailed.store(true, std::memory_order_relaxed);
  state.installDone.store(true, std::memory_order_release);
}

void BeginStep(int step, InstallerState& state, InstallationWorld& world) {
  state.installStep.store(step, std::memory_order_relaxed);
  world.RequestRedraw();
}

bool IsToBeInstalled(const InstallerState& state, std::size_t slot) {
  return state.hostSelected[slot] != 0 && !state.hostPath[slot].empty();
}

const char* PluginFor(const InstallerState& state, std::size_t slot) {
  if (slot == kCustomSlot && state.customBitness == 0) return "Ostrel32";
  return kHostCatalogue[slot].pluginResource;
}

/// The status of launching the copying tool; the other launches may fail. No
/// tool is waited for, and the pipes stay open and unread: closing one could end
/// a tool that is still at work.
int InstallPlugin(const std::string& plugin, const std::string& hostFolder,
                  Authorization& authorization) {
  const std::string folder = JoinPath(hostFolder, kMakerFolder);
  const std::string bundle = JoinPath(folder, "Ostrel.plugin");
  FILE* pipe = nullptr;
  RunPrivileged(authorization, "/bin/mkdir", {folder}, &pipe);
  RunPrivileged(authorization, "/bin/rm", {"-rf", bundle}, &pipe);
  const int status = RunPrivileged(authorization, "/usr/bin/ditto", {plugin, bundle}, &pipe);
  RunPrivileged(authorization, "/bin/chmod", {"-R", "0755", bundle}, &pipe);
  return status;
}

/// False when the copying tool could not be started; later slots are then left alone.
bool InstallSlots(InstallerState& state, InstallationWorld& world, Authorization& authorization) {
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    if (!IsToBeInstalled(state, slot)) continue;
    BeginStep(static_cast<int>(slot), state, world);
    const std::string plugin = world.ResourcePath(PluginFor(state, slot), "plugin");
    if (InstallPlugin(plugin, state.hostPath[slot], authorization) != 0) return false;
  }
  return true;
}

void RunAndWait(const std::string& tool, const std::vector<std::string>& arguments,
                InstallationWorld& world, Authorization& authorization) {
  FILE* pipe = nullptr;
  RunPrivileged(authorization, tool, arguments, &pipe);
  world.WaitForChild(ReadChildPid(pipe));
  if (pipe != nullptr) std::fclose(pipe);
}

/// The folder may hold what the user's own data folder held until now, and is
/// open to every user of the machine afterwards.
void PrepareDataFolder(InstallationWorld& world, Authorization& authorization) {
  const std::string folder = JoinPath(world.DataPath(kMachineData), kMakerFolder);
  if (!world.HasEnvironment("OSTREL_DATA_PATH") && !world.PathExists(folder)) {
    const std::string usersOwn = JoinPath(world.DataPath(kUserData), kMakerFolder);
    if (world.PathExists(usersOwn)) {
      RunAndWait("/bin/mv", {usersOwn, folder}, world, authorization);
    }
  }
  RunAndWait("/bin/mkdir", {folder}, world, authorization);
  RunAndWait("/bin/chmod", {"-R", "0777", folder}, world, authorization);
}

}  // namespace

void RunInstallation(InstallerState& state, InstallationWorld& world) {
  const std::unique_ptr<Authorization> authorization = world.MakeAuthorization();
  authorization->Create();
  const bool isGranted = authorization->CopyRights("system.privilege.admin") == 0;
  if (!isGranted || !InstallSlots(state, world, *authorization)) {
    EndRun(state, true);
    return;
  }
  BeginStep(kDataFolderStep, state, world);
  PrepareDataFolder(world, *authorization);
  authorization->Free();
  EndRun(state, false);
}
