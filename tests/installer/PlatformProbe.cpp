// What the platform says about the machine that it is started on, for tests
// that pretend another machine through its environment. One line per answer.

#include <cstdio>
#include <string>

#include "installer/Cocoa/PlatformHostSources.h"
#include "installer/DataPaths.h"
#include "installer/HostDetection.h"

namespace {

/// The machine's own sources, but with a marker document of any place.
class ProbedSources : public PlatformHostSources {
 public:
  explicit ProbedSources(std::string document) : marker(std::move(document)) {}
  std::optional<std::string> MarkerDocument() override { return marker; }

 private:
  std::string marker;
};

void Print(const char* name, const std::string& value) {
  std::printf("%s %s\n", name, value.c_str());
}

void PrintApplications(HostSources& sources, const std::string& document) {
  const auto applications = sources.ApplicationsForDocument(document);
  Print("list", applications ? "yes" : "no");
  if (!applications) return;
  for (const std::string& path : *applications) Print("application", path);
}

void PrintHosts(HostSources& sources) {
  InstallerState state;
  DetectHosts(sources, state);
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    if (state.hostPath[slot].empty()) continue;
    Print(("host " + std::to_string(slot)).c_str(), state.hostPath[slot]);
  }
  Print("other", state.otherVersionName);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 1;
  ProbedSources sources(argv[1]);
  PrintApplications(sources, argv[1]);
  PrintHosts(sources);
  Print("preferences", sources.PreferenceFile());
  Print("machine data", GetDataPath(2));
  Print("user data", GetDataPath(1));
  Print("documents", GetAssetsPath(1));
  Print("shared documents", GetAssetsPath(2));
  Print("assets", GetAssetsPath(0));
  return 0;
}
