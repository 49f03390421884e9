// The installation alone, without a window: runs it COUNT times for the plug-in
// folders given, as the hosts CS5 and after in this order; %XX stands for the byte
// of that number, since the platform wants its arguments to be UTF-8. Lies in the bundle of
// the installer, whose resources and helper are then its own. Ends with 0 when the
// last run succeeds, with 1 when it fails, with 3 when one leaves other descriptors
// than the pipes of its hosts' tools, which belong to the run for good.

#import <Foundation/Foundation.h>
#include <dirent.h>
#include <unistd.h>

#include <cstdlib>
#include <set>
#include <string>

#include "installer/Cocoa/PlatformInstallationWorld.h"
#include "installer/InstallationRun.h"

namespace {

constexpr std::size_t kFirstSlot = 2;
constexpr std::size_t kToolsForAHost = 4;

std::set<int> OpenDescriptors() {
  std::set<int> open;
  DIR* folder = opendir("/proc/self/fd");
  while (const dirent* entry = readdir(folder)) {
    if (entry->d_name[0] != '.') open.insert(std::atoi(entry->d_name));
  }
  open.erase(dirfd(folder));
  closedir(folder);
  return open;
}

/// Closes what is open now and was not before; how many that were.
std::size_t CloseAllBut(const std::set<int>& before) {
  std::size_t count = 0;
  for (const int descriptor : OpenDescriptors()) {
    if (before.contains(descriptor)) continue;
    close(descriptor);
    ++count;
  }
  return count;
}

std::string Decode(const std::string& text) {
  constexpr int kHexadecimal = 16;
  std::string decoded;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '%') {
      decoded += text[at];
      continue;
    }
    decoded += static_cast<char>(std::stoi(text.substr(at + 1, 2), nullptr, kHexadecimal));
    at += 2;
  }
  return decoded;
}

bool Install(int hosts, char** folders) {
  InstallerState state;
  for (int i = 0; i < hosts; ++i) {
    state.hostPath[kFirstSlot + static_cast<std::size_t>(i)] = Decode(folders[i]);
    state.hostSelected[kFirstSlot + static_cast<std::size_t>(i)] = true;
  }
  PlatformInstallationWorld world([] {});
  RunInstallation(state, world);
  return !state.installFailed;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const int count = std::atoi(argv[1]);
  const int hosts = argc - 2;
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  // What the platform opens once and for all is none of the run's.
  PlatformInstallationWorld([] {}).DataPath(1);
  PlatformInstallationWorld([] {}).ResourcePath("Ostrel64", "plugin");
  const std::set<int> before = OpenDescriptors();
  bool succeeded = true;
  for (int i = 0; i < count; ++i) {
    succeeded = Install(hosts, argv + 2);
    const std::size_t left = CloseAllBut(before);
    if (succeeded && left != kToolsForAHost * static_cast<std::size_t>(hosts)) return 3;
  }
  [pool drain];
  return succeeded ? 0 : 1;
}
